"""Documents, and the views on what they hold."""
import builtins
import collections.abc
import json
import math
import operator
import os
import struct
import weakref
from collections.abc import Mapping
from typing import TYPE_CHECKING, Any, NamedTuple, TypeVar

from . import _nga
from ._journal import Journal, place_of

if TYPE_CHECKING:
    from ._made import Document

_Held = TypeVar("_Held")


class Finding(NamedTuple):
    """One object that breaks a rule."""

    path: str
    module: str
    code: int
    message: str
    note: bool


class Difference(NamedTuple):
    """One place where two contents differ; MISSING stands for a side that has nothing there."""

    path: str
    before: Any
    after: Any


class _Missing:
    """What a side of a difference is that has nothing in the place."""

    __slots__ = ()

    def __repr__(self):
        return "MISSING"

    def __bool__(self):
        return False

    def __reduce__(self):
        return "MISSING"


MISSING = _Missing()


# ---- documents -----------------------------------------------------------------------------------

class _Documents(collections.abc.Mapping[str, "Document"]):
    """The open documents of this thread by name, as paths begin with it. It keeps none alive; of two
    with one name it gives the one that was opened last."""

    def __init__(self):
        self._references = []

    def _add(self, document):
        self._references.append(weakref.ref(document, self._references.remove))

    def _alive(self):
        return [document for reference in self._references
                if (document := reference()) is not None and document._session.is_here]

    def __getitem__(self, name):
        for document in reversed(self._alive()):
            if document.name == name:
                return document
        known = [document.name for document in self._alive()]
        raise KeyError(f"there is no open document {name!r}{_nga.near(str(name), known)}")

    def __iter__(self):
        return iter(dict.fromkeys(document.name for document in self._alive()))

    def __len__(self):
        return len({document.name for document in self._alive()})

    def __repr__(self):
        return f"<documents {list(self)}>"


documents = _Documents()


def _document(session: Any) -> "Document":
    from ._made import Document
    return Document(session)


def new(name: str) -> "Document":
    """A document in memory, without a file."""
    return _document(_nga.Session.new(name))


def _path(path: str | os.PathLike[str]) -> str:
    text = os.fspath(path)
    if not isinstance(text, str):
        raise TypeError(f"a path is expected as text, not as {type(text).__name__}; "
                        "os.fsdecode() makes one")
    try:
        os.fsencode(text)
    except UnicodeEncodeError:
        cause = "the name has half of a character in it (a lone surrogate), as no file has"
        failure = _nga.StoreError(f"{text!a}: {cause}")
        failure.path, failure.cause = text, cause
        raise failure from None
    return text


def _tolerance(name, value):
    if isinstance(value, (str, bytes)) or not hasattr(value, "__float__") and \
            not hasattr(value, "__index__"):
        raise TypeError(f"{name}: {value!r} ({type(value).__name__}) cannot stand here; "
                        "expected a number")
    return float(value)


def _read(path):
    try:
        with builtins.open(path, encoding="utf-8", errors="surrogateescape") as file:
            return file.read()
    except FileNotFoundError:
        cause = "there is no such file"
    except OSError as failure:
        cause = failure.strerror or str(failure)
    except ValueError as failure:
        cause = str(failure)
    _nga.refuse_file(path, cause)


def open(path: str | os.PathLike[str], name: str | None = None) -> "Document":
    """The document of a file: a database, or a text if its name ends in .json. It is named by the
    file, or as said. Opening never writes, and a text is not written back."""
    file = _path(path)
    if file.endswith(".json"):
        text = _read(file)
        stem = os.path.splitext(os.path.basename(file))[0]
        session = _nga.Session.from_json(stem if name is None else name, text)
    else:
        session = _nga.Session.open(file)
        if name is not None:
            session.name = name
    # How the journal's script comes to the start.
    session.set_opened(f"nga.open({file!r})" if name is None else f"nga.open({file!r}, {name!r})",
                       os.path.abspath(file))
    return _document(session)


def _plain(value):
    """What JSON can say of a value: numbers that are none are texts there, and arrays lists."""
    if isinstance(value, float):
        if math.isfinite(value):
            return float(value)
        if math.isinf(value):
            return "Infinity" if value > 0 else "-Infinity"
        bits = struct.pack(">d", value)
        return "NaN" if bits == _USUAL_NAN else "NaN:" + bits.hex()
    if value is None or isinstance(value, (str, int)):
        return value
    if isinstance(value, Mapping):
        for key in value:
            if not isinstance(key, str):
                raise TypeError(f"{key!r} ({type(key).__name__}) cannot be a name; expected a text")
        return {key: _plain(inner) for key, inner in value.items()}
    if isinstance(value, (list, tuple)):
        return [_plain(inner) for inner in value]
    if hasattr(value, "tolist") and hasattr(value, "dtype"):
        if hasattr(value, "mask") and value.mask.any():
            raise ValueError("the array has masked cells; expected a number in each cell")
        if value.dtype.kind == "f" and value.dtype.itemsize > 8:
            # The list of such an array holds scalars of its own type again.
            narrow = value.astype("f8")
            if ((narrow == math.inf) != (value == math.inf)).any() or \
                    ((narrow == -math.inf) != (value == -math.inf)).any():
                raise ValueError("a number of the array is out of range; "
                                 "expected double precision")
            value = narrow
        return _plain(value.tolist())
    raise TypeError(f"{value!r} ({type(value).__name__}) cannot stand in the content; expected "
                    "texts, numbers, mappings, sequences and arrays")


_USUAL_NAN = struct.pack(">d", math.nan)


def _text_of(content):
    if not isinstance(content, Mapping):
        raise TypeError(f"a mapping is expected as content, not a {type(content).__name__}")
    return json.dumps(_plain(content))


def from_dict(name: str, content: Mapping[str, Any]) -> "Document":
    """A document from what to_dict() gave. Arrays of numbers may stand for lists."""
    session = _nga.Session.from_json(name, _text_of(content))
    # The content may be had nowhere else, so the script begins with it.
    session.opening = ""
    return _document(session)


def _copy(name: str, content: Mapping[str, Any]) -> "Document":
    """A copy of a document, under its name unless that is open."""
    while name in documents:
        name += "-copy"
    return from_dict(name, content)


class _Edit:
    """A group of changes that is one step to undo, and none if it fails, or if it is dropped before
    it ends."""

    __slots__ = ("_session", "_why", "_number")

    def __init__(self, session, why):
        self._session = session
        self._why = why
        self._number = None

    def __enter__(self):
        if self._number is not None and self._session.has_edit(self._number):
            _nga.refuse("this edit is open already; another one begins with edit()")
        self._session.open_edit(self, self._why)
        return self

    def __exit__(self, kind, value, trace):
        if self._number is None:
            _nga.refuse("the edit is not open, or not any more")
        if kind is None:
            self._session.close_edit(self._number)
        else:
            self._session.roll_back(self._number)
        self._number = None
        return False

    def __del__(self):
        if self._number is not None:
            self._session.drop_edit(self._number)


class DocumentBase:
    """A model that a script works on: objects by name in its collections. It belongs to the thread
    that opened it. nga.new() and nga.open() make one."""

    # Nothing else can be kept in a document: a mistyped name is refused, and no handle of its own
    # keeps it alive.
    __slots__ = ("_session", "__weakref__")
    _session: Any
    _collections: dict[str, int] = {}

    def __init__(self, session=None, *others, **named):
        if not isinstance(session, _nga.Session) or others or named:
            raise TypeError("nga.new() and nga.open() make documents, not the class")
        if hasattr(self, "_session"):
            raise TypeError("this document is made already")
        object.__setattr__(self, "_session", session)
        documents._add(self)

    @property
    def name(self) -> str:
        return self._session.name

    @property
    def file(self) -> str:
        """The file that save() writes; empty for a document without one."""
        return self._session.file

    @property
    def path(self) -> str:
        return self._session.path

    @property
    def collections(self):
        """The repositories, in the order of texts."""
        return tuple(getattr(self, name) for name in self._collections)

    def save(self) -> None:
        """Writes the file, whole or not at all. A document that was opened from a text has none
        until save_as() gives it one."""
        self._session.save()

    def save_as(self, path: str | os.PathLike[str]) -> None:
        """Writes another file, a database, which becomes that of the document and names it."""
        file = _path(path)
        # open() would take such a file for a text, and the tool too.
        if file == "-" or file.endswith(".json"):
            stem = os.path.splitext(os.path.basename(file))[0] if file != "-" else self.name
            _nga.refuse("a database cannot stand there: under this name a JSON text is read", file,
                        f"the name of a database, such as {stem}.nga; to_json() gives the text")
        self._session.save_as(file)

    # ---- time ----
    def edit(self, why: str = "") -> _Edit:
        """with doc.edit('why'): groups changes into one step, and takes them back if it raises."""
        return _Edit(self._session, why)

    def undo(self) -> bool:
        """Takes the last step back; False where there is none."""
        return self._session.undo()

    def redo(self) -> bool:
        """Does again what undo() took back; False where there is nothing."""
        return self._session.redo()

    @property
    def undo_count(self) -> int:
        return self._session.counts()[0]

    @property
    def redo_count(self) -> int:
        return self._session.counts()[1]

    def forget_history(self) -> None:
        """Lets go of all steps, so that none can be undone or done again, and of the records of the
        journal, which begins anew here. Each step keeps what it replaced while it is there;
        sessions that make millions of steps call this from time to time."""
        self._session.forget()

    def snapshot(self) -> _nga.Snapshot:
        """The content as it is now, for diff(). It shares with the document and costs nothing."""
        return self._session.snapshot()

    def diff(self, before: "_nga.Snapshot | DocumentBase", *, relative: float = 0.0,
             absolute: float = 0.0) -> list[Difference]:
        """Where the document differs from a snapshot or another document, as a list of Difference.
        Numbers count as equal within the larger of absolute and relative times the larger one."""
        if isinstance(before, DocumentBase):
            before = before.snapshot()
        if not isinstance(before, _nga.Snapshot):
            raise TypeError("a document differs from a snapshot or another document, not from a "
                            f"{type(before).__name__}")
        found = _nga.diff(before, self.snapshot(), self.path, _tolerance("relative", relative),
                          _tolerance("absolute", absolute), MISSING)
        return [Difference(*one) for one in found]

    @property
    def journal(self) -> Journal:
        """What was done: the change records, and the script that does it again."""
        return Journal(self)

    # ---- rules ----
    def findings(self, deep: bool = False) -> list[Finding]:
        """Every object that breaks a rule, with the first rule that it breaks. With deep also, as
        notes, what would fail if its owner asked it."""
        return [Finding(*one) for one in self._session.findings(deep)]

    def validate(self) -> None:
        """Raises ValidationError for the first object that breaks a rule."""
        for collection in self.collections:
            for item in collection.values():
                item.validate()

    # ---- texts ----
    def to_json(self) -> str:
        """The document as JSON text."""
        return self._session.export_json()

    def import_json(self, text: str,
                    on_conflict: str = "error") -> list[tuple[str, int, int, int]]:
        """Puts the objects of a text into the document, as one step: all, or none. For a name that
        is taken on_conflict decides: 'error', 'replace' or 'keep'."""
        if on_conflict not in ("error", "replace", "keep"):
            raise ValueError("on_conflict is 'error', 'replace' or 'keep'")
        return self._session.import_json(text, on_conflict)

    def to_dict(self) -> dict[str, Any]:
        """The document as dictionaries and lists, as its JSON text has them."""
        return json.loads(self.to_json())

    if not TYPE_CHECKING:
        def __getattr__(self, name):
            if name.startswith("_"):
                raise AttributeError(name)
            known = [known for known in dir(type(self)) if not known.startswith("_")]
            raise AttributeError(f"a document has no attribute {name!r}{_nga.near(name, known)}")

        def __setattr__(self, name, value):
            if name in self._collections:
                raise AttributeError(f"the collection {name} cannot be replaced; assign to its "
                                     "entries")
            known = list(self._collections)
            raise AttributeError(f"a document has no attribute {name!r} that could be set"
                                 f"{_nga.near(name, known)}")

        def __delattr__(self, name):
            raise AttributeError(f"a document has no attribute {name!r} that could be deleted")

    def __repr__(self):
        return f"<Document {self.path}>" if self._session.is_here else \
            "<Document of another thread>"

    def _repr_html_(self):
        from ._html import document_html
        return document_html(self)

    def __reduce__(self):
        return _copy, (self.name, self.to_dict())

    def __copy__(self):
        return _copy(self.name, self.to_dict())

    def __deepcopy__(self, memo):
        return self.__copy__()


class _Objects:
    """Of mappings whose values are handles: what is taken out of one stands nowhere any more, so it
    is given as an object of no document."""

    __slots__ = ()

    def pop(self, name, *default):
        """Takes an object away and gives it, as one of no document."""
        if default and name not in self:
            return default[0]
        taken = _nga.copy(self[name])
        del self[name]
        return taken

    def popitem(self):
        """The same with the first name, and gives the name too."""
        for name in self:
            return name, self.pop(name)
        raise KeyError("there is nothing to take away")


class Repository(_Objects, collections.abc.MutableMapping[str, _Held]):
    """The objects of one collection by name, in natural order: steel-9 before steel-10."""

    __slots__ = ("_document", "_index", "_name")

    def __init__(self, document, index, name):
        self._document = document
        self._index = index
        self._name = name

    @property
    def name(self) -> str:
        return self._name

    @property
    def path(self) -> str:
        return f"{self._document.path}.{self._name}"

    def __getitem__(self, name: str) -> _Held:
        return self._document._session.entry(self._document, self._index, name)

    def __setitem__(self, name, value):
        self._document._session.put_entry(self._index, name, value)

    def __delitem__(self, name):
        self._document._session.remove_entry(self._index, name)

    def __contains__(self, name):
        return self._document._session.contains(self._index, name)

    def get(self, name, default=None):
        """The object of that name, or the default, also for what no object can have as its name."""
        return self[name] if name in self else default

    def __len__(self):
        return self._document._session.size(self._index)

    def __iter__(self):
        return iter(self._document._session.keys(self._index))

    def rename(self, old: str, new: str) -> None:
        """Gives an object another name. Handles go by path: those of the old name end."""
        self._document._session.rename_entry(self._index, old, new)

    def update(self, *others, **more):
        """Puts copies under several names, as one step."""
        with self._document.edit():
            super().update(*others, **more)

    def clear(self):
        """Takes all objects away, as one step."""
        with self._document.edit():
            for name in self:
                del self[name]

    def __eq__(self, other):
        if not isinstance(other, Repository):
            return NotImplemented
        return (self._document is other._document and self._index == other._index) or \
            (list(self) == list(other) and all(self[name] == other[name] for name in self))

    def __repr__(self):
        if not self._document._session.is_here:
            return f"<{self._name} of another thread>"
        return f"<{self.path}: {len(self)} object{'' if len(self) == 1 else 's'}>"

    def _repr_html_(self):
        from ._html import repository_html
        return repository_html(self)


# ---- objects -------------------------------------------------------------------------------------

class _Class(type):
    """Classes of the library write their help when somebody asks for it."""

    @property
    def __doc__(cls):
        if "_facts" in vars(cls):
            from ._help import class_help
            return class_help(cls)
        return vars(cls).get("_help")

    @property
    def __signature__(cls):
        if "_facts" not in vars(cls) or vars(cls)["_facts"]["abstract"]:
            raise AttributeError("__signature__")
        from ._signature import constructor_signature
        return constructor_signature(cls)


class Object(_nga.Object, metaclass=_Class):
    __slots__ = ()
    _help = """An object of a document, reached by its path, or one that belongs to none yet.

An object of a document holds nothing: it follows its path, also behind an undo, and raises
ReferenceError when the path leads nowhere any more."""
    _keyed: tuple = ()
    _type_id: int = 0

    def __new__(cls, *, validate=True, **fields):
        if "_facts" not in vars(cls):
            raise TypeError(f"{cls.__name__} cannot be made; make one of its classes")
        return _nga.create(cls._type_id, fields, validate)

    def __init__(self, **fields):
        pass

    def setValues(self, *, validate: bool = True, **fields: Any) -> None:
        """Sets several fields, or none if one is refused. The object is checked before anything is
        written, unless validate is false."""
        _nga.set_values(self, fields, validate)

    def validate(self) -> None:
        """Raises ValidationError with the first rule that the object breaks."""
        _nga.validate(self)

    def findings(self, deep: bool = False) -> list[Finding]:
        """The objects, from this one down, that break a rule."""
        return [Finding(*one) for one in _nga.findings(self, deep)]

    @property
    def options(self) -> "Options":
        """The optional objects that are set, by name. Assigning a mapping sets those and takes all
        others away."""
        return Options(self)

    @options.setter
    def options(self, options: Mapping[str, Any]) -> None:
        if not isinstance(options, Mapping):
            raise TypeError(f"{type(self).__name__}.options: {options!r} "
                            f"({type(options).__name__}) cannot stand here; expected a mapping of "
                            "names and objects")
        given = Options(self)
        for name in options:
            given._require(name)
        _nga.set_values(self, {name: options.get(name) for name in self._keyed}, False)

    def sort(self, n: int, field: str | None = None) -> None:
        """Orders the rows of the table by its last n columns, the last one first. The table's field
        is named where the object has several."""
        if field is None:
            from ._classes import all_fields
            tables = [one["script"] for one in all_fields(type(self)) if one["is_table"]]
            if len(tables) != 1:
                raise TypeError(f"{type(self).__name__} has {len(tables)} tables; name the field")
            field = tables[0]
        if not isinstance(field, str):
            raise TypeError(f"sort: {field!r} ({type(field).__name__}) cannot be the name of a "
                            "field; expected a text")
        if isinstance(n, bool) or not hasattr(n, "__index__"):
            raise TypeError(f"sort: {n!r} ({type(n).__name__}) cannot stand here; expected an "
                            "integer, the number of columns")
        _nga.sort(self, field, operator.index(n))

    def to_dict(self) -> dict[str, Any]:
        """The fields that are not at their defaults, as the JSON text has them."""
        return json.loads(_nga.to_json(self))

    @classmethod
    def from_dict(cls, content: Mapping[str, Any]) -> Any:
        """An object of no document from what to_dict() gave; nothing is checked."""
        return _nga.from_json(cls._type_id, _text_of(content))

    def __eq__(self, other):
        if self is other:
            return True
        if not isinstance(other, _nga.Object):
            return NotImplemented
        return _nga.same(self, other)

    # Equality goes by content, which changes, so none is a key; a path is.
    __hash__ = None  # type: ignore[assignment]

    def __repr__(self):
        if not _nga.is_here(self):
            return f"<{type(self).__name__} of another thread>"
        if self.path is not None:
            return f"<{type(self).__name__} {self.path}{'' if self.alive else ' (gone)'}>"
        text = _nga.expression(self)
        return text if len(text) <= 120 and "\n" not in text else \
            f"<{type(self).__name__} of no document>"

    def _repr_html_(self):
        from ._html import object_html
        return object_html(self)

    def __copy__(self):
        return _nga.copy(self)

    def __deepcopy__(self, memo):
        return _nga.copy(self)

    def __reduce__(self):
        return _restore, (type(self)._type_id, _nga.to_json(self))


def _restore(type_id, text):
    return _nga.from_json(type_id, text)


class Options(_Objects, collections.abc.MutableMapping[str, Any]):
    """The optional objects of one object that are set, by name. Assigning None to one takes it
    away, as with its attribute."""

    __slots__ = ("_owner",)

    def __init__(self, owner):
        self._owner = owner

    def _fail(self, name, why):
        raise KeyError(f"{self._owner.path or type(self._owner).__name__}: the option {name!r} "
                       f"{why}")

    def _require(self, name):
        if name not in self._owner._keyed:
            self._fail(name, "is none" + _nga.near(str(name), list(self._owner._keyed)))

    def __getitem__(self, name):
        self._require(name)
        found = getattr(self._owner, name)
        if found is None:
            self._fail(name, "is not set")
        return found

    def __setitem__(self, name, value):
        self._require(name)
        setattr(self._owner, name, value)

    def __delitem__(self, name):
        self[name]
        delattr(self._owner, name)

    def __iter__(self):
        return (name for name in self._owner._keyed if getattr(self._owner, name) is not None)

    def __len__(self):
        return sum(1 for _ in self)

    def update(self, *others, **more):
        """Sets several options as one step, or none."""
        given = dict(*others, **more)
        for name in given:
            self._require(name)
        _nga.set_values(self._owner, given, False)

    def clear(self) -> None:
        """Takes all options away, as one step."""
        _nga.set_values(self._owner, dict.fromkeys(self._owner._keyed), False)

    def __repr__(self):
        if not _nga.is_here(self._owner):
            return "<options of another thread>"
        return f"<options {list(self)}>"

    def _repr_html_(self):
        from ._html import options_html
        return options_html(self)


class ObjectList(collections.abc.MutableSequence[Any]):
    """A list of objects in an object. Elements are reached by their places: what stands at [0]
    after an insertion is what was inserted. To let two change places, copy one of them first."""

    __slots__ = ("_owner", "_field")

    def __init__(self, owner, field):
        self._owner = owner
        self._field = field

    def _place(self, index):
        return place_of(index, len(self))

    def __len__(self):
        return _nga.count(self._owner, self._field)

    def __getitem__(self, index):
        if isinstance(index, slice):
            return [self[place] for place in range(*index.indices(len(self)))]
        return _nga.element(self._owner, self._field, self._place(index))

    def _elements(self):
        # As objects of no document, since the places are about to change.
        return _nga.value(self._owner, self._field)

    def _assign(self, elements):
        setattr(self._owner, self._field, elements)

    def __setitem__(self, index, value):
        elements = self._elements()
        if not isinstance(index, slice):
            index = self._place(index)
        elements[index] = value
        self._assign(elements)

    def __delitem__(self, index):
        elements = self._elements()
        if not isinstance(index, slice):
            index = self._place(index)
        del elements[index]
        self._assign(elements)

    def insert(self, index, value):
        elements = self._elements()
        elements.insert(index, value)
        self._assign(elements)

    def append(self, value):
        if value is None:
            self.insert(len(self), None)
        else:
            _nga.append(self._owner, self._field, value)

    def pop(self, index=-1):
        """Takes an element away and gives it, as an object of no document."""
        elements = self._elements()
        taken = elements.pop(self._place(index))
        self._assign(elements)
        return taken

    def reverse(self):
        """Turns the order around, as one step."""
        self._assign(self._elements()[::-1])

    def clear(self):
        """Takes all elements away, as one step."""
        self._assign([])

    def extend(self, values):
        self._assign(self._elements() + list(values))

    def __eq__(self, other):
        if not isinstance(other, (ObjectList, list, tuple)):
            return NotImplemented
        return len(self) == len(other) and all(a == b for a, b in zip(self, other))

    def __repr__(self):
        if not _nga.is_here(self._owner):
            return "<list of another thread>"
        return f"[{', '.join(map(repr, self))}]"

    def _repr_html_(self):
        from ._html import list_html
        return list_html(self)


class FloatMap(collections.abc.MutableMapping[str, float]):
    """A map from names to single-precision numbers in an object."""

    __slots__ = ("_owner", "_field", "_stamp", "_read")

    def __init__(self, owner, field):
        self._owner = owner
        self._field = field
        self._stamp = None

    def _values(self):
        # What was read stays right until the document is written to, so that walking through all
        # names and asking for each reads them once.
        stamp = _nga.stamp(self._owner)
        if stamp != self._stamp:
            self._read = _nga.value(self._owner, self._field)
            self._stamp = stamp
        return self._read

    def __getitem__(self, name):
        values = self._values()
        if name not in values:
            raise KeyError(f"there is no entry {name!r}{_nga.near(str(name), list(values))}")
        return values[name]

    def __contains__(self, name):
        return isinstance(name, str) and name in self._values()

    def get(self, name, default=None):
        """The number of that name, or the default, also for what can be no name."""
        return self[name] if name in self else default

    def __setitem__(self, name, value):
        _nga.put_numbers(self._owner, self._field, {name: value})

    def __delitem__(self, name):
        if not _nga.remove_number(self._owner, self._field, name):
            # Says so, with near names.
            self[name]

    def update(self, *others, **more):
        """Sets several entries as one step."""
        _nga.put_numbers(self._owner, self._field, dict(*others, **more))

    def clear(self):
        """Takes all entries away, as one step."""
        setattr(self._owner, self._field, {})

    def __iter__(self):
        return iter(self._values())

    def __len__(self):
        return len(self._values())

    def __repr__(self):
        if not _nga.is_here(self._owner):
            return "<map of another thread>"
        return repr(self._values())

    def _repr_html_(self):
        from ._html import map_html
        return map_html(self)


# ---- values --------------------------------------------------------------------------------------

def empty_table(columns: int) -> Any:
    """A table without rows that has columns nevertheless."""
    import numpy
    return numpy.empty((0, columns))


def real(text: str) -> float:
    """A number from its text in a model: "NaN:" and the bits stand for a NaN other than the usual
    one."""
    if text.startswith("NaN:"):
        bits = text[4:]
        return struct.unpack(">d" if len(bits) == 16 else ">f", bytes.fromhex(bits))[0]
    return float(text)
