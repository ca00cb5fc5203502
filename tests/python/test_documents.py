import copy
import gc
import pickle
import sqlite3
import threading

import numpy
import pytest

import nga
from conftest import all_objects


def test_a_document_is_made_saved_and_opened(tmp_path):
    doc = nga.new("bracket")
    doc.Material(name="steel", description="SI")
    with pytest.raises(nga.Error):
        doc.save()
    doc.save_as(tmp_path / "other.nga")
    assert doc.name == "other"
    assert doc.file == str(tmp_path / "other.nga")
    doc.materials["steel"].description = "mm"
    doc.save()
    assert nga.open(tmp_path / "other.nga").materials["steel"].description == "mm"
    assert nga.open(tmp_path / "other.nga", name="mine").path == "documents['mine']"


def test_a_missing_file_is_told():
    with pytest.raises(nga.StoreError, match="there is no such file") as failure:
        nga.open("/nowhere/at_all.nga")
    assert failure.value.path == "/nowhere/at_all.nga"
    assert isinstance(failure.value, OSError)


def test_a_text_that_is_no_file_is_told(tmp_path):
    missing = str(tmp_path / "missing.json")
    with pytest.raises(nga.StoreError, match="there is no such file") as failure:
        nga.open(missing)
    assert failure.value.path == missing
    (tmp_path / "folder.json").mkdir()
    with pytest.raises(nga.StoreError, match="directory"):
        nga.open(tmp_path / "folder.json")
    for text in ("", "{", "[]", "\0"):
        (tmp_path / "broken.json").write_text(text)
        with pytest.raises(nga.Error):
            nga.open(tmp_path / "broken.json")


def test_a_database_that_is_none_is_told(tmp_path):
    with pytest.raises(nga.StoreError):
        nga.open(tmp_path)
    for content in (b"", b"no database", b"SQLite format 3\0" + bytes(84)):
        (tmp_path / "broken.nga").write_bytes(content)
        with pytest.raises(nga.StoreError) as failure:
            nga.open(tmp_path / "broken.nga")
        assert failure.value.path == str(tmp_path / "broken.nga") and failure.value.cause
        assert (tmp_path / "broken.nga").read_bytes() == content
    doc = nga.new("old")
    doc.save_as(tmp_path / "cut.nga")
    whole = (tmp_path / "cut.nga").read_bytes()
    (tmp_path / "cut.nga").write_bytes(whole[:len(whole) // 2])
    with pytest.raises(nga.StoreError):
        nga.open(tmp_path / "cut.nga")


def test_an_old_and_a_newer_database_say_what_to_do(tmp_path, doc):
    doc.Material(name="steel").Elastic(table=((1.0, 2.0),))
    for name, change, remedy in (
            ("old", "UPDATE nga_Catalogue SET Version=200 WHERE ClassName='kmaC_Elastic'",
             "run: nga upgrade"),
            ("newer", "PRAGMA user_version=9999", "a newer nga is needed")):
        path = tmp_path / f"{name}.nga"
        doc.save_as(path)
        database = sqlite3.connect(path)
        database.execute(change)
        database.commit()
        database.close()
        with pytest.raises(nga.StoreError, match=remedy) as failure:
            nga.open(path)
        assert failure.value.path == str(path)


def test_a_path_that_is_no_text_is_a_type_error(tmp_path, doc):
    for wrong in (b"a.nga", 3, None):
        with pytest.raises(TypeError):
            nga.open(wrong)
        with pytest.raises(TypeError):
            doc.save_as(wrong)
    doc.save_as(tmp_path / "a.nga")
    for name in ("a\0b.nga", "a\0b.json", "", ".json"):
        with pytest.raises(nga.StoreError) as failure:
            nga.open(name)
        assert failure.value.path == name and str(failure.value).startswith(name + ": ")
    with pytest.raises(TypeError, match="expected as text, not as bytes"):
        nga.open(b"a.nga")
    with pytest.raises(TypeError):
        nga.open(tmp_path / "a.nga", name=3)


def test_a_document_is_made_by_the_functions_alone(doc):
    for wrong in ("x", None, doc):
        with pytest.raises(TypeError, match="nga.new"):
            nga.Document(wrong)
    with pytest.raises(TypeError):
        doc.__init__(nga.new("other")._session)
    assert doc.name == "bench"
    for inner in (type(doc._session), nga.Snapshot):
        for make in (inner, lambda: inner.__new__(inner), lambda: object.__new__(inner)):
            with pytest.raises(TypeError):
                make()


def test_a_document_takes_no_attributes(doc):
    with pytest.raises(AttributeError, match="did you mean 'materials'"):
        doc.material = 3
    with pytest.raises(AttributeError, match="materials"):
        doc.materials = {}
    for name in ("mine", "_session", "name", "save"):
        with pytest.raises(AttributeError):
            setattr(doc, name, 3)
        with pytest.raises(AttributeError):
            delattr(doc, name)
    assert not hasattr(doc, "__dict__") and doc.name == "bench"


def test_a_repository_is_a_mapping_in_the_order_of_the_tree(doc):
    for number in (10, 9, 2):
        doc.Material(name=f"steel-{number}")
    assert list(doc.materials) == ["steel-2", "steel-9", "steel-10"]
    assert [*doc.materials.keys()] == list(doc.materials)
    assert [name for name, _ in doc.materials.items()] == list(doc.materials)
    assert len(doc.materials) == 3
    assert "steel-9" in doc.materials and "steel" not in doc.materials and 5 not in doc.materials
    del doc.materials["steel-9"]
    assert list(doc.materials) == ["steel-2", "steel-10"]
    doc.materials.rename("steel-10", "iron")
    assert list(doc.materials) == ["iron", "steel-2"]


@pytest.mark.parametrize("action", [
    lambda materials: materials["steal"],
    lambda materials: materials.__delitem__("steal"),
    lambda materials: materials.rename("steal", "x"),
])
def test_a_missing_name_is_a_key_error_with_near_names(doc, action):
    doc.Material(name="steel")
    with pytest.raises(KeyError, match="did you mean 'steel'"):
        action(doc.materials)


def test_names_that_cannot_be_used_are_refused(doc):
    doc.Material(name="steel")
    for name in ("", "a'b", "a\\b", "a\nb"):
        with pytest.raises(ValueError):
            doc.Material(name=name)
        with pytest.raises(ValueError):
            doc.materials.rename("steel", name)
    with pytest.raises(ValueError, match="already"):
        doc.Material(name="steel")
    with pytest.raises(TypeError):
        doc.Material(name=5)
    assert list(doc.materials) == ["steel"]


def test_a_reserved_name_is_refused_with_the_library_s_words(doc):
    with pytest.raises(nga.ValidationError) as failure:
        doc.ButterworthFilter(name="Antialiasing", validate=False)
    assert failure.value.code == 6
    assert "kflC_assert" in failure.value.file and failure.value.line > 0
    assert len(doc.filters) == 0


def test_an_object_can_be_assigned_also_from_another_document(doc):
    doc.Material(name="steel", description="a").Density(table=((7850.0,),))
    other = nga.new("other")
    other.materials["iron"] = doc.materials["steel"]
    assert other.materials["iron"] == doc.materials["steel"]
    other.materials["iron"].density.table = ((1.0,),)
    assert doc.materials["steel"].density.table[0, 0] == 7850.0
    with pytest.raises(TypeError):
        other.amplitudes["iron"] = doc.materials["steel"]


def test_the_newest_of_two_documents_of_one_name_is_found():
    first = nga.new("twin")
    assert nga.documents["twin"] is first
    second = nga.new("twin")
    assert nga.documents["twin"] is second
    del second
    gc.collect()
    assert nga.documents["twin"] is first


def test_documents_end_when_nobody_holds_them():
    doc = nga.new("short lived")
    assert "short lived" in nga.documents
    material = doc.Material(name="steel")
    del doc
    gc.collect()
    assert nga.documents["short lived"] is material.document
    del material
    gc.collect()
    assert "short lived" not in nga.documents


def test_an_import_is_one_step(doc, example):
    text = example.to_json()
    doc.import_json(text)
    assert doc.to_json() == text
    assert doc.undo_count == 1
    with pytest.raises(nga.Error):
        doc.import_json(text)
    assert doc.to_json() == text
    assert doc.undo_count == 1
    doc.undo()
    assert not any(len(collection) for collection in doc.collections)


def test_a_text_with_a_mistake_tells_line_and_place(doc):
    with pytest.raises(nga.Error) as failure:
        doc.import_json('{"materials":\n {"a": {"densty": {}}}}')
    assert failure.value.line == 2
    assert failure.value.place == "materials['a'].densty"
    assert "density" in str(failure.value)


def test_a_document_is_pickled_and_copied(example):
    assert pickle.loads(pickle.dumps(example)).to_json() == example.to_json()
    copied = copy.deepcopy(example)
    assert copied.to_json() == example.to_json()
    assert copied.name == example.name + "-copy"
    assert nga.from_dict("x", example.to_dict()).to_json() == example.to_json()


def test_copies_do_not_stand_before_what_they_are_copies_of(doc):
    doc.Material(name="steel")
    text = pickle.dumps(doc)
    copies = [copy.copy(doc), copy.deepcopy(doc), pickle.loads(text)]
    assert [one.name for one in copies] == ["bench-copy", "bench-copy-copy",
                                            "bench-copy-copy-copy"]
    assert nga.documents["bench"] is doc
    assert all(one.to_dict() == doc.to_dict() for one in copies)
    copies[0].materials["steel"].description = "a"
    assert doc.materials["steel"].description == ""
    lonely = pickle.dumps(nga.new("lonely"))
    gc.collect()
    assert pickle.loads(lonely).name == "lonely"


def test_content_may_hold_arrays_and_numbers_that_are_none():
    nan, inf = float("nan"), float("inf")
    table = [[nan, inf], [-inf, 1.0]]
    expected = nga.Elastic(table=table, validate=False)
    assert nga.Elastic.from_dict({"table": table}) == expected
    assert nga.Elastic.from_dict({"table": numpy.array(table)}) == expected
    assert nga.Elastic.from_dict({"table": list(numpy.array(table, dtype="f4"))}) == expected
    assert nga.Elastic.from_dict({"dependencies": numpy.int64(2)}).dependencies == 2
    bits = nga.real("NaN:fff8000000000001")
    back = nga.Elastic.from_dict({"table": [[bits, 1.0]]}).table
    assert back.tobytes() == numpy.array([[bits, 1.0]]).tobytes()
    doc = nga.from_dict("x", {"materials": {"steel": {"elastic": {"table": numpy.array(table)}}}})
    assert doc.materials["steel"].elastic == expected
    for wrong in (object(), {1, 2}, 1j, b"x"):
        with pytest.raises(TypeError, match="cannot stand"):
            nga.Elastic.from_dict({"table": wrong})
    with pytest.raises(TypeError, match="cannot be a name"):
        nga.Elastic.from_dict({3: 1})
    with pytest.raises(TypeError):
        nga.from_dict("x", [])


def test_another_thread_is_refused_and_harms_nothing(doc):
    material = doc.Material(name="steel")
    free = nga.Density(table=((1.0,),))
    refused = []

    def misuse():
        for use in (lambda: material.description, lambda: doc.materials["steel"],
                    lambda: len(doc.materials), lambda: setattr(material, "description", "x"),
                    lambda: doc.undo(), lambda: doc.snapshot(), lambda: free.table,
                    lambda: doc.Material(name="x"), lambda: doc.to_json(),
                    lambda: doc.name, lambda: doc.file, lambda: doc.path,
                    lambda: doc.undo_count, lambda: doc.redo_count,
                    lambda: doc._session.reasons(), lambda: doc.journal.records,
                    lambda: len(doc.journal), lambda: doc.journal.script):
            try:
                use()
            except RuntimeError as failure:
                refused.append(str(failure))

    thread = threading.Thread(target=misuse)
    thread.start()
    thread.join()
    assert len(refused) == 18
    assert all("belongs to the thread" in text for text in refused)
    assert material.description == ""


def test_a_thread_sees_its_own_documents(doc):
    seen = []

    def look():
        here = nga.new("there")
        seen.extend((list(nga.documents), repr(doc), "bench" in nga.documents, here.name))

    thread = threading.Thread(target=look)
    thread.start()
    thread.join()
    assert seen == [["there"], "<Document of another thread>", False, "there"]
    assert nga.documents["bench"] is doc


def test_a_document_may_end_in_another_thread():
    box = [nga.new("handed over")]
    box[0].Material(name="steel").Density(table=((1.0,),))
    thread = threading.Thread(target=box.clear)
    thread.start()
    thread.join()
    gc.collect()
    assert "handed over" not in nga.documents


def test_findings_are_listed_with_paths(doc):
    doc.LoadCase(name="overload", loads={"lift": 0.0}, validate=False)
    (finding,) = doc.findings()
    assert finding.path == "documents['bench'].loadCases['overload']"
    assert finding.message == "A scale factor cannot be zero or blank."
    assert (finding.module, finding.code, finding.note) == ("klc", 0, False)
    with pytest.raises(nga.ValidationError):
        doc.validate()
    assert doc.loadCases["overload"].findings() == [finding]


def test_an_unknown_attribute_of_a_document_names_near_ones(doc):
    with pytest.raises(AttributeError, match="materials"):
        doc.material


def test_every_path_of_every_example_leads_to_its_object(example):
    objects = list(all_objects(example))
    assert objects
    for item in objects:
        assert eval(item.path, {"documents": nga.documents}) is item


def test_a_path_with_half_a_character_is_told(doc, tmp_path):
    for name in ("a\ud800.nga", "a\ud800.json"):
        for use in (lambda: nga.open(name), lambda: doc.save_as(name)):
            with pytest.raises(nga.StoreError, match="half of a character") as failure:
                use()
            assert failure.value.path == name and "lone surrogate" in failure.value.cause
    # Bytes that are no text are names of files all the same.
    odd = str(tmp_path / "odd \udcff.nga")
    doc.save_as(odd)
    assert nga.open(odd).name == "odd \udcff"
