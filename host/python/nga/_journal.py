"""The change records of a document, and the script that is made from its history."""
import collections.abc
import json
import operator
from typing import TYPE_CHECKING, Any

if TYPE_CHECKING:
    from ._model import DocumentBase


def place_of(index, length):
    """The place in a list of that length, for an index as Python has them."""
    if not hasattr(index, "__index__"):
        raise TypeError(f"{index!r} ({type(index).__name__}) cannot be a place in a list; expected "
                        "an integer or a slice")
    index = operator.index(index)
    place = index + length if index < 0 else index
    if not 0 <= place < length:
        raise IndexError(f"there is no element {index}: the list has {length}")
    return place


class Journal(collections.abc.Sequence[tuple[Any, ...]]):
    """The change records of a document as they were sent, oldest first, as tuples. Its script does
    once more what was done and not undone."""

    def __init__(self, document):
        self._document = document

    @property
    def records(self) -> list[tuple[Any, ...]]:
        return self._document._session.records(0, len(self))

    @property
    def script(self) -> str:
        """A Python program that opens the document as it was before the first change, and makes the
        same changes. Where there is no file of that, because the document was made from a text, or
        was saved meanwhile over what it was opened from, the program holds the content itself."""
        session = self._document._session
        return session.script(session.opening or self._start())

    def _start(self):
        import pprint
        session = self._document._session
        text = session.start_text()
        content = json.loads(text)
        # Breaking lines well is slow, and nobody reads that much.
        shown = pprint.pformat(content, width=100, sort_dicts=False) if len(text) < 20000 else \
            repr(content)
        return f"nga.from_dict({session.name!r}, {shown})"

    @property
    def body(self) -> str:
        """The script without the lines that open the document, over the variable doc."""
        return self._document._session.script_body()

    def replay(self, document: "DocumentBase") -> None:
        """Makes the same changes to another document, as one step."""
        import nga
        with document.edit("replay"):
            exec(compile(self.body, "<journal>", "exec"), {"nga": nga, "doc": document})

    def __len__(self):
        return self._document._session.record_count()

    def __getitem__(self, index):
        if isinstance(index, slice):
            return self.records[index]
        length = len(self)
        place = place_of(index, length)
        return self._document._session.records(place, 1)[0]

    # Over one list: by places, each look would cost a call and a check of its own.
    def __iter__(self):
        return iter(self.records)

    def __reversed__(self):
        return reversed(self.records)

    def __contains__(self, record):
        return record in self.records

    def index(self, record, *bounds):
        return self.records.index(record, *bounds)

    def count(self, record):
        return self.records.count(record)

    def __str__(self):
        return self.script + "".join(f"# {record!r}\n" for record in self.records)

    def __repr__(self):
        if not self._document._session.is_here:
            return "<journal of another thread>"
        return f"<journal of {self._document.path}: {len(self)} change records>"
