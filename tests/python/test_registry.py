"""Walks the registered classes: one that is added is tested without a line here."""
import copy
import json
import pickle

import numpy
import pytest

import nga
from conftest import concrete_classes, fields_of
from samples import changed_value, holder_of, wrong_type

CLASSES = concrete_classes()
CASES = [(cls, field) for cls in CLASSES for field in fields_of(cls)]


def name_of(case):
    return f"{case[0].__name__}.{case[1]['script']}" if isinstance(case, tuple) else case.__name__


def same_value(a, b):
    if isinstance(a, numpy.ndarray) or isinstance(b, numpy.ndarray):
        return numpy.array_equal(numpy.asarray(a), numpy.asarray(b))
    if isinstance(a, dict) or isinstance(b, dict):
        return dict(a) == dict(b)
    return a == b


def placed(cls):
    """An object of the class in a document, as deep as it must be."""
    document = nga.new("placed")
    for collection in document.collections:
        try:
            collection["it"] = cls(validate=False)
            return document, collection["it"]
        except TypeError:
            continue
    for owner, field in holder_of(cls):
        if owner is cls:
            continue
        found = placed(owner)
        if found is None:
            continue
        document, item = found
        made = cls(validate=False)
        if field["kind"] in ("option", "object"):
            setattr(item, field["script"], made)
            return document, getattr(item, field["script"])
        setattr(item, field["script"], [made])
        return document, getattr(item, field["script"])[0]
    return None


def test_there_are_many_classes():
    assert len(CLASSES) > 100


@pytest.mark.parametrize("cls", CLASSES, ids=name_of)
def test_every_class_is_made_and_equals_another_of_its_kind(cls):
    made = cls(validate=False)
    assert type(made) is cls
    assert made == cls(validate=False)
    assert made.path is None
    assert made.to_dict() == {}
    assert repr(made)


@pytest.mark.parametrize("cls", CLASSES, ids=name_of)
def test_every_class_tells_its_fields_in_its_help(cls):
    for field in fields_of(cls):
        assert field["script"] in cls.__doc__


@pytest.mark.parametrize("case", CASES, ids=name_of)
def test_every_field_takes_another_value_and_gives_it_back(case):
    cls, field = case
    item = cls(validate=False)
    value = changed_value(field, item)
    setattr(item, field["script"], value)
    assert same_value(getattr(item, field["script"]), value)
    assert item != cls(validate=False)
    assert cls(validate=False, **{field["script"]: value}) == item
    assert cls.from_dict(json.loads(json.dumps(item.to_dict()))) == item
    assert pickle.loads(pickle.dumps(item)) == item
    assert copy.deepcopy(item) == item


@pytest.mark.parametrize("case", CASES, ids=name_of)
def test_every_field_refuses_a_wrong_type_and_stays(case):
    cls, field = case
    item = cls(validate=False)
    before = item.to_dict()
    with pytest.raises(TypeError):
        setattr(item, field["script"], wrong_type(field))
    with pytest.raises(TypeError):
        item.setValues(**{field["script"]: wrong_type(field)})
    assert item.to_dict() == before


@pytest.mark.parametrize("case", [case for case in CASES if case[1]["literals"]], ids=name_of)
def test_every_enumeration_refuses_an_unknown_literal_and_names_the_known(case):
    cls, field = case
    item = cls(validate=False)
    with pytest.raises(ValueError) as failure:
        setattr(item, field["script"], "NO_SUCH_LITERAL")
    assert not isinstance(failure.value, nga.ValidationError)
    assert field["literals"][0] in str(failure.value)
    for literal in field["literals"]:
        setattr(item, field["script"], getattr(nga, literal))
        assert getattr(item, field["script"]) is getattr(nga, literal)
        assert repr(getattr(item, field["script"])) == literal


@pytest.mark.parametrize("cls", CLASSES, ids=name_of)
def test_every_class_is_changed_in_a_document_undone_stored_and_read(cls, tmp_path):
    found = placed(cls)
    if found is None:
        pytest.skip("no document can hold one")
    document, item = found
    assert eval(item.path, {"documents": nga.documents}) is item
    start = document.to_dict()
    for field in fields_of(cls):
        before = document.undo_count
        setattr(item, field["script"], changed_value(field, item))
        assert document.undo_count == before + 1
    changed = document.to_dict()
    assert changed != start or not fields_of(cls)
    for _ in fields_of(cls):
        assert document.undo()
    assert document.to_dict() == start
    while document.redo():
        pass
    assert document.to_dict() == changed
    document.save_as(tmp_path / "placed.nga")
    assert nga.open(tmp_path / "placed.nga").to_dict() == changed


@pytest.mark.parametrize("cls", CLASSES, ids=name_of)
def test_the_journal_of_every_class_gives_an_equal_document(cls):
    found = placed(cls)
    if found is None:
        pytest.skip("no document can hold one")
    document, item = found
    for field in fields_of(cls):
        setattr(item, field["script"], changed_value(field, item))
    again = nga.new("again")
    document.journal.replay(again)
    assert again.to_dict() == document.to_dict()
    assert not document.diff(again)


@pytest.mark.parametrize("cls", CLASSES, ids=name_of)
def test_the_journal_of_every_class_changes_what_is_there_already(cls):
    found = placed(cls)
    if found is None:
        pytest.skip("no document can hold one")
    document, item = found
    for field in fields_of(cls):
        setattr(item, field["script"], changed_value(field, item))
    usual = cls(validate=False)
    for change in (lambda field: changed_value(field, item),
                   lambda field: getattr(usual, field["script"])):
        start = nga.from_dict("start", document.to_dict())
        document.forget_history()
        for field in fields_of(cls):
            setattr(item, field["script"], change(field))
        document.journal.replay(start)
        assert start.to_dict() == document.to_dict(), document.journal.body
        assert not start.diff(document)
