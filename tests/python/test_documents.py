import copy
import gc
import pickle
import threading

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


def test_another_thread_is_refused_and_harms_nothing(doc):
    material = doc.Material(name="steel")
    free = nga.Density(table=((1.0,),))
    refused = []

    def misuse():
        for use in (lambda: material.description, lambda: doc.materials["steel"],
                    lambda: len(doc.materials), lambda: setattr(material, "description", "x"),
                    lambda: doc.undo(), lambda: doc.snapshot(), lambda: free.table,
                    lambda: doc.Material(name="x"), lambda: doc.to_json()):
            try:
                use()
            except RuntimeError as failure:
                refused.append(str(failure))

    thread = threading.Thread(target=misuse)
    thread.start()
    thread.join()
    assert len(refused) == 9
    assert all("belongs to the thread" in text for text in refused)
    assert material.description == ""


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
