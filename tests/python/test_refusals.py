"""What the layer refuses, what changes nothing, and how it says so."""
import sys

import numpy
import pytest

import nga


@pytest.fixture
def steel(doc):
    return doc.Material(name="steel")


@pytest.fixture
def elastic(steel):
    return steel.Elastic(table=((210e3, 0.3),))


@pytest.mark.parametrize("name", ["x.json", "-"])
def test_a_database_is_not_written_under_the_name_of_a_text(doc, tmp_path, monkeypatch, name):
    monkeypatch.chdir(tmp_path)
    with pytest.raises(nga.Error, match="a database cannot stand there") as failure:
        doc.save_as(name)
    assert failure.value.place == name
    assert ".nga" in failure.value.expected
    assert not list(tmp_path.iterdir())
    assert doc.file == ""


def test_a_text_that_was_opened_is_not_written_back(doc, tmp_path):
    file = tmp_path / "x.json"
    file.write_text(doc.to_json())
    opened = nga.open(file)
    opened.Material(name="steel")
    with pytest.raises(nga.Error, match="no file yet"):
        opened.save()
    assert file.read_text() == doc.to_json()


def test_the_flag_of_a_table_alone_keeps_its_rows():
    found = 0
    for cls, field in flagged_tables():
        item = cls(validate=False)
        setattr(item, field, ((1.0, 2.0), (3.0, 4.0)))
        texts = []
        for flag in (True, False):
            setattr(item, field, {"allowEmptyFirstRow": flag})
            assert getattr(item, field).tolist() == [[1.0, 2.0], [3.0, 4.0]]
            texts.append(item.to_dict())
        assert texts[0] != texts[1]
        found += 1
    assert found


def flagged_tables():
    from conftest import concrete_classes, fields_of
    from nga._classes import class_of
    for cls in concrete_classes():
        for field in fields_of(cls):
            if field["is_table"] and field["held"]:
                flags = [one["script"] for one in fields_of(class_of[field["held"]])]
                if "allowEmptyFirstRow" in flags:
                    yield cls, field["script"]


def test_the_journal_is_walked_over_one_list(doc, monkeypatch):
    for number in range(5):
        doc.Material(name=f"m{number}")
    journal = doc.journal
    records = journal.records
    calls = []
    monkeypatch.setattr(type(journal), "records",
                        property(lambda self: calls.append(1) or records))
    assert list(journal) == records and len(calls) == 1
    assert records[-1] in journal and ("Insert", "none", 0) not in journal
    assert list(reversed(journal)) == records[::-1]
    assert journal.index(records[3]) == 3 and journal.count(records[3]) == 1
    walked = len(calls)
    # One record is no list of all.
    assert [journal[place] for place in range(-5, 5)] == records[-5:] + records[:5]
    assert len(calls) == walked
    with pytest.raises(IndexError):
        journal[len(records)]
    assert journal[1:3] == records[1:3]


def test_adding_to_a_list_in_place_is_one_step(doc, steel):
    mullins = steel.MullinsEffect(validate=False)
    steps = doc.undo_count
    mullins.uniaxialTests += [nga.UniaxialTestData(table=((0.1, 0.05), (0.2, 0.1)))]
    assert doc.undo_count == steps + 1 and len(mullins.uniaxialTests) == 1
    assert doc.undo() and len(mullins.uniaxialTests) == 0


def test_what_changes_nothing_is_no_step_and_keeps_what_can_be_done_again(doc, steel, elastic):
    mullins = steel.MullinsEffect(
        validate=False, uniaxialTests=[nga.UniaxialTestData(table=((0.1, 0.05), (0.2, 0.1)))])
    case = doc.LoadCase(name="service", loads={"wind": 0.5})
    elastic.noCompression = True
    doc.undo()
    counts = doc.undo_count, doc.redo_count
    records = len(doc.journal)
    assert counts[1] == 1
    steel.description = steel.description
    elastic.table = elastic.table
    elastic.table = elastic.table.tolist()
    elastic.table = {}
    elastic.moduli = elastic.moduli
    elastic.dependencies = elastic.dependencies
    elastic.noCompression = False
    elastic.sort(1)
    elastic.setValues(noCompression=False, dependencies=0)
    steel.elastic = elastic
    steel.options = steel.options
    steel.density = None
    del steel.density
    mullins.uniaxialTests = mullins.uniaxialTests
    mullins.uniaxialTests[0] = mullins.uniaxialTests[0]
    case.loads = {"wind": 0.5}
    case.loads["wind"] = 0.5
    case.loads.update(wind=0.5)
    doc.materials["steel"] = steel
    assert (doc.undo_count, doc.redo_count) == counts
    assert len(doc.journal) == records
    assert doc.redo() and elastic.noCompression


def test_numbers_that_differ_in_their_bits_alone_are_changes(doc, elastic):
    elastic.table = ((0.0, 0.3),)
    steps = doc.undo_count
    elastic.table = ((-0.0, 0.3),)
    assert doc.undo_count == steps + 1 and numpy.signbit(elastic.table[0, 0])
    case = doc.LoadCase(name="service", loads={"wind": 0.0}, validate=False)
    steps = doc.undo_count
    case.loads["wind"] = -0.0
    assert doc.undo_count == steps + 1 and numpy.signbit(case.loads["wind"])


def nested(depth):
    made = nga.MullinsEffect(validate=False)
    for _ in range(depth - 1):
        made = nga.MullinsEffect(uniaxialTests=[made], validate=False)
    return made


def test_objects_nest_as_deep_as_texts_do(doc, steel, tmp_path):
    with pytest.raises(ValueError, match="MullinsEffect.uniaxialTests: the objects nest too deep"):
        nested(33)
    deepest = nested(32)
    assert nga.MullinsEffect.from_dict(deepest.to_dict()) == deepest
    assert repr(deepest)
    # In a document there are levels above it.
    with pytest.raises(ValueError, match="nest too deep; expected at most 64 levels"):
        steel.mullinsEffect = deepest
    with pytest.raises(ValueError, match="nest too deep"):
        steel.setValues(mullinsEffect=deepest)
    with pytest.raises(ValueError, match="nest too deep"):
        doc.Material(name="iron", mullinsEffect=deepest, validate=False)
    assert steel.mullinsEffect is None and list(doc.materials) == ["steel"]
    steel.mullinsEffect = deepest.uniaxialTests[0]
    file = tmp_path / "deep.nga"
    doc.save_as(file)
    assert nga.from_dict("again", doc.to_dict()).materials["steel"] == steel
    assert nga.open(file).materials["steel"] == steel
    inner = steel.mullinsEffect
    while inner.uniaxialTests:
        inner = inner.uniaxialTests[0]
    with pytest.raises(ValueError, match="nest too deep"):
        inner.uniaxialTests.append(nga.MullinsEffect(validate=False))
    with pytest.raises(ValueError, match="nest too deep"):
        inner.uniaxialTests = [nga.MullinsEffect(validate=False)]
    with pytest.raises(ValueError, match="nest too deep"):
        nga.MullinsEffect(uniaxialTests=[nested(20)], validate=False).uniaxialTests[0] \
            .uniaxialTests.append(nested(31))
    assert doc.to_json()


def test_a_number_that_stands_for_none_is_refused(doc, elastic):
    with pytest.raises(ValueError, match=r"Elastic.dependencies: the number 2147483647 stands for "
                                         r"one that is not set; expected None"):
        elastic.dependencies = 2147483647
    elastic.dependencies = 2147483646
    assert elastic.dependencies == 2147483646
    refused = 0
    from conftest import concrete_classes, fields_of
    for cls in concrete_classes():
        for field in fields_of(cls):
            if field["kind"] == "float" and field["words"]:
                item = cls(validate=False)
                word = field["words"][0][0]
                with pytest.raises(ValueError, match=f"expected None or {word} for that"):
                    setattr(item, field["script"], sys.float_info.max)
                setattr(item, field["script"], getattr(nga, word))
                assert getattr(item, field["script"]) == getattr(nga, word)
                refused += 1
    assert refused


@pytest.mark.parametrize("action, text", [
    (lambda d, s, e: e.sort("a"), "sort: 'a' (str) cannot stand here; expected an integer"),
    (lambda d, s, e: e.sort(1.0), "sort: 1.0 (float) cannot stand here; expected an integer"),
    (lambda d, s, e: e.sort(1, 5), "sort: 5 (int) cannot be the name of a field"),
    (lambda d, s, e: s.Elastic(validate="no"), "validate: 'no' (str) cannot stand here; expected "),
    (lambda d, s, e: nga.Elastic(validate=1), "validate: 1 (int) cannot stand here; expected "),
    (lambda d, s, e: d.Material(name="x", validate=None), "validate: None (NoneType) cannot "),
    (lambda d, s, e: e.setValues(validate="no"), "validate: 'no' (str) cannot stand here"),
    (lambda d, s, e: d.findings("x"), "deep: 'x' (str) cannot stand here; expected True or False"),
    (lambda d, s, e: e.findings("x"), "deep: 'x' (str) cannot stand here; expected True or False"),
    (lambda d, s, e: s.MullinsEffect(validate=False).uniaxialTests[0.0],
     "0.0 (float) cannot be a place in a list; expected an integer"),
    (lambda d, s, e: nga.Document(), "nga.new() and nga.open() make documents"),
    (lambda d, s, e: nga.Document(name="x"), "nga.new() and nga.open() make documents"),
    (lambda d, s, e: setattr(e, "table", numpy.zeros(3)), "Elastic.table: the array has 1 dim"),
    (lambda d, s, e: setattr(e, "table", numpy.array([["a"]])), "Elastic.table: the array holds"),
])
def test_a_wrong_type_is_told_in_words_of_the_layer(doc, steel, elastic, action, text):
    with pytest.raises(TypeError) as failure:
        action(doc, steel, elastic)
    assert text in str(failure.value)
    assert "incompatible" not in str(failure.value)


def test_sorting_by_more_columns_than_any_table_has_tells_the_number(elastic):
    with pytest.raises(ValueError, match="cannot sort by 1000000000000000000000 columns"):
        elastic.sort(10**21)


@pytest.mark.parametrize("key", [5, None, [], "\ud800", ("a",)])
def test_keys_that_nothing_can_have_are_in_no_mapping(doc, steel, elastic, key):
    case = doc.LoadCase(name="service", loads={"wind": 0.5})
    for mapping in (doc.materials, steel.options, case.loads, nga.documents):
        assert key not in mapping
        assert mapping.get(key) is None
        assert mapping.get(key, 7) == 7
    assert doc.materials.get("steel") is steel
    assert case.loads.get("wind") == 0.5
