"""What must not grow with the document, counted and not timed."""
import subprocess
import sys
import tracemalloc

import numpy
import pytest

import nga


def material_text(size):
    entries = ", ".join(f'"m{i}": {{"elastic": {{"table": [[{i}.5, 0.3]]}}}}' for i in range(size))
    return f'{{"materials": {{{entries}}}}}'


@pytest.fixture(scope="module")
def large():
    document = nga.new("large")
    document.import_json(material_text(100_000))
    return document


def blocks_of(work):
    """How many blocks Python holds more for what the work gives, once it is warm."""
    work()
    before = sys.getallocatedblocks()
    kept = work()
    after = sys.getallocatedblocks()
    del kept
    return after - before


def test_a_snapshot_of_a_large_document_makes_no_more_objects(large, doc):
    assert abs(blocks_of(large.snapshot) - blocks_of(doc.snapshot)) <= 2


def test_reading_a_large_table_copies_nothing(doc):
    elastic = doc.Material(name="steel").Elastic(table=numpy.ones((100_000, 5)), validate=False)
    first = elastic.table
    tracemalloc.start()
    second = elastic.table
    size, peak = tracemalloc.get_traced_memory()
    tracemalloc.stop()
    assert numpy.shares_memory(first, second)
    assert second.nbytes == 4_000_000 and peak < 4096
    # Nor does it make the next write copy more than the table that is replaced.
    other = doc.Material(name="iron").Elastic(table=(), validate=False)
    other.table = first
    assert numpy.shares_memory(other.table, first)


def test_a_write_keeps_the_handles_of_other_objects_and_their_tables(large):
    kept, table = large.materials["m1"], large.materials["m2"].elastic.table
    large.materials["m77777"].elastic.dependencies = 4
    assert large.materials["m1"] is kept
    assert numpy.shares_memory(large.materials["m2"].elastic.table, table)
    large.undo()


def test_the_import_of_the_module_leaves_numpy_out():
    code = "import sys, nga; assert not {'numpy', 'inspect'} & set(sys.modules), 'too much'"
    subprocess.run([sys.executable, "-S", "-c", code], check=True, timeout=60)


def test_a_map_is_walked_in_one_reading(doc, monkeypatch):
    case = doc.LoadCase(name="service", loads={f"load {i}": float(i + 1) for i in range(2000)})
    readings = []
    whole = nga._nga.value
    monkeypatch.setattr(nga._nga, "value", lambda *given: readings.append(1) or whole(*given))
    loads = case.loads
    assert len(dict(loads)) == 2000 and sum(loads.values()) == 2000 * 2001 / 2
    assert all(loads[name] == number for name, number in loads.items())
    assert len(readings) == 1
    case.loads["load 0"] = -1.0
    assert loads["load 0"] == -1.0
    doc.undo()
    assert loads["load 0"] == 1.0


def test_a_map_is_written_without_reading_it(doc, monkeypatch):
    case = doc.LoadCase(name="service", loads={f"load {i}": float(i + 1) for i in range(1000)})
    steps = doc.undo_count
    monkeypatch.setattr(nga._nga, "value", None)
    loads = case.loads
    loads["load 1"] = -1.0
    loads["new"] = 0.5
    del loads["load 2"]
    loads.update({"load 3": -3.0}, more=1.0)
    assert doc.undo_count == steps + 4
    monkeypatch.undo()
    assert (loads["load 1"], loads["new"], loads["load 3"], loads["more"]) == (-1.0, 0.5, -3.0, 1.0)
    assert "load 2" not in loads and len(loads) == 1001
    for wrong, kind in ((lambda: loads.__setitem__(5, 1.0), TypeError),
                        (lambda: loads.__setitem__("x", "y"), TypeError),
                        (lambda: loads.__setitem__("it's", 1.0), ValueError),
                        (lambda: loads.update({"x": 1.0, "y": 1e300}), ValueError),
                        (lambda: loads.__delitem__("load 2"), KeyError),
                        (lambda: loads.__delitem__(5), KeyError)):
        with pytest.raises(kind):
            wrong()
    assert doc.undo_count == steps + 4
    for _ in range(4):
        doc.undo()
    assert dict(case.loads) == {f"load {i}": float(i + 1) for i in range(1000)}
