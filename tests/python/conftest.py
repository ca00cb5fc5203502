import pathlib

import pytest

import nga

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = sorted((ROOT / "examples").glob("*.json"))


def all_objects(document):
    """Every object of a document, at every depth."""
    for collection in document.collections:
        for item in collection.values():
            yield from with_inner(item)


def with_inner(item):
    yield item
    for field in fields_of(type(item)):
        if field["is_table"] or field["kind"] not in ("object", "option", "options", "list"):
            continue
        value = getattr(item, field["script"])
        for inner in ([value] if field["kind"] in ("object", "option") else value):
            if inner is not None:
                yield from with_inner(inner)


def fields_of(cls):
    from nga._classes import all_fields
    return all_fields(cls)


def concrete_classes():
    from nga._classes import class_of
    return [cls for cls in class_of.values()
            if not cls._facts["abstract"] and not cls._facts["is_table"]]


@pytest.fixture
def doc():
    return nga.new("bench")


@pytest.fixture(params=EXAMPLES, ids=lambda path: path.stem)
def example(request):
    return nga.open(request.param)
