import json
import os
import subprocess

import pytest

import nga

TOOL = os.environ.get("NGA_TOOL")


@pytest.fixture
def steel(doc):
    steel = doc.Material(name="steel")
    steel.Elastic(table=((210e3, 0.3),))
    return steel


def test_a_snapshot_stays_as_it_was(doc, steel):
    before = doc.snapshot()
    assert doc.diff(before) == []
    steel.elastic.table = ((210e3, 0.29),)
    steel.elastic.type = nga.LAMINA
    steel.Density(table=((1.0,),))
    iron = doc.Material(name="iron", description="new")
    prefix = "documents['bench'].materials['steel'].options"
    density, *rest = doc.diff(before)[1:]
    assert doc.diff(before)[0] == (iron.path, nga.MISSING, nga.Material(description="new"))
    assert density == (f"{prefix}['density']", None, steel.density) or \
        density == (f"{prefix}['density']", nga.MISSING, steel.density)
    assert rest == [(f"{prefix}['elastic'].type", nga.ISOTROPIC, nga.LAMINA),
                    (f"{prefix}['elastic'].table[0][1]", 0.3, 0.29)]
    while doc.undo_count > 2:
        doc.undo()
    assert doc.diff(before) == []


def test_differences_know_lists_maps_and_shapes(doc, steel):
    case = doc.LoadCase(name="service", loads={"wind": 1.0, "snow": 2.0})
    mullins = steel.MullinsEffect(validate=False)
    mullins.uniaxialTests = [nga.UniaxialTestData(table=((1.0, 2.0),))]
    before = doc.snapshot()
    case.loads = {"wind": 1.5, "ice": 3.0}
    mullins.uniaxialTests.append(nga.UniaxialTestData())
    mullins.uniaxialTests[0].table = ((1.0, 3.0),)
    steel.elastic.table = ((1.0, 2.0, 3.0),)
    found = {difference.path: difference for difference in doc.diff(before)}
    loads = case.path + ".loads"
    assert found[loads + "['wind']"][1:] == (1.0, 1.5)
    assert found[loads + "['snow']"][1:] == (2.0, nga.MISSING)
    assert found[loads + "['ice']"][1:] == (nga.MISSING, 3.0)
    assert found[mullins.path + ".uniaxialTests[1]"].before is nga.MISSING
    assert found[mullins.path + ".uniaxialTests[0].table[0][1]"][1:] == (2.0, 3.0)
    assert found[steel.elastic.path + ".table"].before.shape == (1, 2)
    assert len(found) == 6


@pytest.mark.parametrize("a, b, relative, absolute, same", [
    (1.0, 1.0 + 1e-9, 1e-8, 0.0, True), (1.0, 1.0 + 1e-7, 1e-8, 0.0, False),
    (0.0, 1e-300, 0.5, 0.0, False), (0.0, 1e-300, 0.0, 1e-299, True),
    (0.0, -0.0, 0.0, 0.0, True), (1e-300, 2e-300, 0.1, 1e-12, True),
    (float("nan"), float("nan"), 0.0, 0.0, True), (float("nan"), 1.0, 1.0, 1e308, False),
    (float("inf"), float("inf"), 0.0, 0.0, True), (float("inf"), 1e308, 1.0, 1e308, False),
    (-1.0, 1.0, 0.5, 0.0, False), (1e308, -1e308, 1.0, 0.0, False)])
def test_tolerances_are_right_also_near_zero(steel, doc, a, b, relative, absolute, same):
    steel.elastic.table = ((a, 0.0),)
    before = doc.snapshot()
    steel.elastic.table = ((b, 0.0),)
    assert (doc.diff(before, relative=relative, absolute=absolute) == []) is same


def test_a_number_that_is_not_set_is_near_to_no_number(doc):
    hyper = doc.Material(name="rubber").Hyperelastic(validate=False)
    before = doc.snapshot()
    hyper.beta = 1.0
    (difference,) = doc.diff(before, relative=1.0, absolute=1e308)
    assert difference[1:] == (nga.FITTED_VALUE, 1.0)


def test_documents_are_compared(example):
    again = nga.from_dict("again", example.to_dict())
    assert again.diff(example) == []
    name = next(iter(again.materials), None)
    if name:
        again.materials[name].description += "!"
        assert len(again.diff(example)) == 1


# ---- the tool ------------------------------------------------------------------------------------

def test_a_tolerance_below_zero_or_without_a_value_is_refused(doc, steel):
    before = doc.snapshot()
    for wrong in (-1.0, float("nan"), float("-inf")):
        for tolerance in ({"relative": wrong}, {"absolute": wrong}):
            with pytest.raises(nga.Error, match="not negative"):
                doc.diff(before, **tolerance)


def test_a_difference_to_anything_else_is_a_type_error(doc):
    for wrong in (3, None, "bench", {}):
        with pytest.raises(TypeError, match="a snapshot or another document"):
            doc.diff(wrong)


def test_a_tolerance_that_is_no_number_is_a_type_error(doc, steel):
    before = doc.snapshot()
    for name in ("relative", "absolute"):
        for wrong in ("x", None, [1.0], 1j):
            with pytest.raises(TypeError, match=f"^{name}: .* cannot stand here; expected a number"):
                doc.diff(before, **{name: wrong})
        assert doc.diff(before, **{name: 1}) == []


pytestmark_tool = pytest.mark.skipif(not TOOL, reason="the tool is not there")


def tool(*arguments):
    done = subprocess.run([TOOL, *map(str, arguments)], capture_output=True, text=True)
    return done.returncode, done.stdout, done.stderr


@pytest.fixture
def files(tmp_path, doc, steel):
    doc.LoadCase(name="service", loads={"wind": 1.0})
    doc.save_as(tmp_path / "a.nga")
    steel.elastic.table = ((210e3, 0.3 + 1e-12),)
    del doc.loadCases["service"]
    doc.Material(name="iron")
    doc.save_as(tmp_path / "b.nga")
    return tmp_path / "a.nga", tmp_path / "b.nga"


@pytestmark_tool
def test_the_tool_lists_differences_and_exits_with_1(files):
    a, b = files
    code, out, err = tool("diff", a, b)
    assert code == 1
    assert out.splitlines() == [
        f"materials['iron']: only in {b}: kmaC_Material",
        "materials['steel'].options['elastic'].table[0][1]: 0.3 -> 0.30000000000099997",
        f"loadCases['service']: only in {a}: klcC_LoadCase"]
    assert err == "3 differences\n"
    assert tool("diff", a, b, "--tolerance", "1e-9")[1].count("\n") == 2
    assert tool("diff", a, b, "--tolerance", "0,1e-9")[1].count("\n") == 2
    assert tool("diff", a, b, "--tolerance", "1e-15")[1].count("\n") == 3
    assert tool("diff", a, a) == (0, "", "no differences\n")


@pytestmark_tool
def test_the_tool_reports_as_json(files):
    a, b = files
    code, out, _ = tool("diff", a, b, "--json")
    report = json.loads(out)
    assert code == 1 and report["before"] == str(a) and report["after"] == str(b)
    assert [one["kind"] for one in report["differences"]] == ["only in after", "changed",
                                                              "only in before"]
    assert report["differences"][1]["before"] == 0.3


@pytestmark_tool
def test_the_tool_refuses_a_wrong_tolerance_or_file(files):
    a, b = files
    assert tool("diff", a, b, "--tolerance", "-1")[0] == 2
    assert tool("diff", a, b, "--tolerance", "much")[0] == 2
    assert tool("diff", a, b, "--tolerance", "nan")[0] == 2
    assert tool("diff", a, b, "--tolerance", "0,nan")[0] == 2
    assert tool("diff", a, "nowhere.nga")[0] == 2


@pytestmark_tool
def test_the_tool_writes_the_script_of_an_import(example, tmp_path):
    text = tmp_path / f"{example.name}.json"
    text.write_text(example.to_json())
    code, out, _ = tool("journal", text, "--script")
    assert code == 0
    space = {}
    exec(out, space)
    assert space["doc"].to_json() == example.to_json()
