"""The package as a whole: its stubs, its installation, its help, how it looks in a notebook."""
import os
import pathlib
import pydoc
import subprocess
import sys
import xml.dom.minidom

import pytest

import nga
from conftest import ROOT, all_objects, concrete_classes

PACKAGE = pathlib.Path(nga.__file__).parent


def has(module):
    return subprocess.run([sys.executable, "-c", f"import {module}"],
                          capture_output=True).returncode == 0


@pytest.mark.skipif(not has("mypy"), reason="mypy is not there")
def test_the_stubs_agree_with_the_module(tmp_path):
    done = subprocess.run([sys.executable, "-m", "mypy.stubtest", "nga", "--concise",
                           "--allowlist", str(ROOT / "tests" / "python" / "stubtest_allowed.txt"),
                           "--ignore-unused-allowlist"],
                          cwd=tmp_path, capture_output=True, text=True,
                          env=os.environ | {"PYTHONPATH": str(PACKAGE.parent),
                                            "MYPYPATH": str(PACKAGE.parent)})
    assert done.returncode == 0, done.stdout + done.stderr


@pytest.mark.skipif(not has("mypy"), reason="mypy is not there")
def test_a_type_checker_finds_mistakes_in_scripts(tmp_path):
    script = tmp_path / "script.py"
    script.write_text("""\
import nga
doc = nga.open('a.nga')
elastic = nga.Elastic(type=nga.LAMINA, table=((1.0, 2.0),))
elastic.dependencies = 2
elastic.moduli = 'LONG_TERM'
doc.materials['steel'].elastic = elastic
doc.Material(name='iron', description='SI').Elastic(dependencies=1)
elastic.moduli = 'LONG'
elastic.noTension = 'yes'
elastic.dependenzies = 3
doc.Materiel(name='gold')
nga.Elastic(tabel=())
""")
    done = subprocess.run([sys.executable, "-m", "mypy", "--cache-dir", str(tmp_path / "cache"),
                           str(script)], cwd=tmp_path, capture_output=True, text=True,
                          env=os.environ | {"MYPYPATH": str(PACKAGE.parent)})
    lines = {int(line.split(":")[1]) for line in done.stdout.splitlines()
             if line.startswith("script.py") and ": error:" in line}
    assert lines == {8, 9, 10, 11, 12}, done.stdout + done.stderr


def test_help_says_fields_types_literals_defaults_and_rules():
    text = pydoc.plain(pydoc.render_doc(nga.Elastic))
    for part in ("moduli", "INSTANTANEOUS, LONG_TERM (default LONG_TERM)", "a table: rows of numbers",
                 "an integer (default 0)", "a FailStress, or None",
                 "kma 34: No compression and No tension are mutually exclusive."):
        assert part in text
    assert "ductileDamageInitiation" in pydoc.render_doc(nga.Material)


def test_tab_completion_knows_collections_constructors_and_fields():
    assert {"materials", "Material", "undo"} <= set(dir(nga.new("a")))
    assert {"elastic", "Elastic", "setValues"} <= set(dir(nga.Material))
    assert {"Elastic", "ISOTROPIC", "open"} <= set(dir(nga)) & set(nga.__all__ + ["open"])


def test_every_object_of_every_example_shows_itself_in_a_notebook(example):
    for shown in [example, *example.collections, *all_objects(example)]:
        text = shown._repr_html_()
        xml.dom.minidom.parseString(f"<div>{text}</div>")
        assert "<script" not in text


def test_names_are_escaped_in_a_notebook(doc):
    doc.Material(name="<b>", description="<script>x</script>")
    for shown in (doc.materials, doc.materials["<b>"]):
        assert "<b>" not in shown._repr_html_() and "<script" not in shown._repr_html_()


def test_amplitudes_and_profiles_show_a_picture(doc):
    amplitude = doc.TabularAmplitude(name="ramp", data=((0.0, 0.0), (1.0, 1.0)))
    profile = doc.PipeProfile(name="tube", r=10.0, t=1.0)
    for item in (amplitude, profile, nga.PipeProfile(r=10.0, t=1.0)):
        assert "<svg" in item._repr_html_()
    assert "<svg" not in doc.Material(name="steel")._repr_html_()
    del doc.amplitudes["ramp"]
    assert "(gone)" in amplitude._repr_html_()


@pytest.mark.parametrize("cls", concrete_classes(), ids=lambda cls: cls.__name__)
def test_every_class_shows_itself_in_a_notebook(cls):
    xml.dom.minidom.parseString(f"<div>{cls(validate=False)._repr_html_()}</div>")
