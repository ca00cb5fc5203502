"""The script of a journal: short, readable, and right whatever was done."""
import ast
import random
import struct

import numpy
import pytest

import nga
from conftest import concrete_classes, fields_of
from samples import change_plain, make_held
from test_registry import placed


def body_of(document, change):
    """The script of what the change does to a document, tried on another one that stands as it
    stood before."""
    start = nga.from_dict("start", document.to_dict())
    document.forget_history()
    change(document)
    body = document.journal.body
    document.journal.replay(start)
    assert start.to_json() == document.to_json()
    return body


@pytest.fixture
def model(doc):
    steel = doc.Material(name="steel", description="SI")
    steel.Elastic(table=((210e3, 0.3),))
    rubber = doc.Material(name="rubber")
    mullins = rubber.MullinsEffect(validate=False)
    mullins.uniaxialTests = [nga.UniaxialTestData(table=((float(i), 2.0 * i), (10.0 + i, 30.0)))
                             for i in range(1, 6)]
    doc.LoadCase(name="service", loads={f"load {i}": float(i) for i in range(1, 9)})
    doc.Material(name="user").UserMaterial(mechanicalConstants=[0.5 * i for i in range(40)],
                                           validate=False)
    return doc


TESTS = "doc.materials['rubber'].mullinsEffect.uniaxialTests"


def test_a_rename_and_an_edit_of_the_same_object_are_a_line_each(model):
    def change(doc):
        doc.materials["steel"].description = "mm"
        doc.materials.rename("steel", "iron")
        doc.materials["iron"].elastic.moduli = nga.INSTANTANEOUS

    assert body_of(model, change) == """\
doc.materials.rename('steel', 'iron')
doc.materials['iron'].elastic.moduli = nga.INSTANTANEOUS
doc.materials['iron'].description = 'mm'
"""


def test_objects_that_change_places_are_renamed(model):
    def change(doc):
        doc.materials.rename("steel", "aside")
        doc.materials.rename("rubber", "steel")
        doc.materials.rename("aside", "rubber")
        doc.materials["rubber"].description = "was steel"

    assert body_of(model, change) == """\
doc.materials.rename('steel', 'aside')
doc.materials.rename('rubber', 'steel')
doc.materials.rename('aside', 'rubber')
doc.materials['rubber'].description = 'was steel'
"""


def test_an_element_that_was_changed_is_a_line(model):
    def change(doc):
        tests = doc.materials["rubber"].mullinsEffect.uniaxialTests
        tests[3].table = ((7.0, 8.0),)

    assert body_of(model, change) == f"{TESTS}[3].table = ((7.0, 8.0),)\n"


@pytest.mark.parametrize("place, line", [
    (0, ".insert(0, nga.UniaxialTestData(table=((9.0, 9.0),)))"),
    (2, ".insert(2, nga.UniaxialTestData(table=((9.0, 9.0),)))"),
    (5, ".append(nga.UniaxialTestData(table=((9.0, 9.0),)))")])
def test_an_element_that_was_inserted_is_a_line(model, place, line):
    def change(doc):
        tests = doc.materials["rubber"].mullinsEffect.uniaxialTests
        tests.insert(place, nga.UniaxialTestData(table=((9.0, 9.0),)))

    assert body_of(model, change) == TESTS + line + "\n"


@pytest.mark.parametrize("place", [0, 2, 4])
def test_an_element_that_was_removed_is_a_line(model, place):
    def change(doc):
        del doc.materials["rubber"].mullinsEffect.uniaxialTests[place]

    assert body_of(model, change) == f"del {TESTS}[{place}]\n"


def test_edits_of_one_list_are_told_in_their_turn(model):
    def change(doc):
        tests = doc.materials["rubber"].mullinsEffect.uniaxialTests
        del tests[0]
        tests[0].table = ((5.0, 5.0),)
        tests.append(nga.UniaxialTestData(table=((6.0, 6.0),)))

    # Which one of the first two is called the changed one, nobody can tell behind it.
    assert body_of(model, change) == f"""\
{TESTS}[0].table = ((5.0, 5.0),)
del {TESTS}[1]
{TESTS}.append(nga.UniaxialTestData(table=((6.0, 6.0),)))
"""


def test_a_list_that_is_new_all_over_is_assigned_whole(model):
    def change(doc):
        doc.materials["rubber"].mullinsEffect.uniaxialTests = [nga.UniaxialTestData()]

    assert body_of(model, change) == f"{TESTS} = [nga.UniaxialTestData()]\n"


def test_an_entry_of_a_map_is_a_line(model):
    loads = "doc.loadCases['service'].loads"

    def change(doc):
        doc.loadCases["service"].loads["load 3"] = 3.5

    assert body_of(model, change) == f"{loads}['load 3'] = 3.5\n"

    def more(doc):
        del doc.loadCases["service"].loads["load 1"]
        doc.loadCases["service"].loads["a new one"] = -1.0

    assert body_of(model, more) == f"del {loads}['load 1']\n{loads}['a new one'] = -1.0\n"


def test_a_number_of_a_long_list_is_a_line(model):
    constants = "doc.materials['user'].userMaterial.mechanicalConstants"

    def with_numbers(change):
        def made(doc):
            user = doc.materials["user"].userMaterial
            numbers = list(user.mechanicalConstants)
            change(numbers)
            user.mechanicalConstants = numbers
        return body_of(model, made)

    assert with_numbers(lambda numbers: numbers.append(-1.0)) == \
        f"{constants} = (*{constants}[:40], -1.0)\n"
    text = with_numbers(lambda numbers: numbers.__setitem__(20, 7.0))
    assert len(text.splitlines()) <= 5 and "7.0" in text and "15.5" not in text
    text = with_numbers(lambda numbers: numbers.pop(0))
    assert text == f"{constants} = (*{constants}[1:],)\n"
    # A short list says more as it is.
    assert with_numbers(lambda numbers: numbers.__setitem__(slice(None), [1.0, 2.0])) == \
        f"{constants} = (1.0, 2.0)\n"


def test_a_cell_of_a_long_table_is_told_alone(model):
    table = numpy.arange(200.0).reshape(100, 2)
    model.materials["steel"].elastic.table = table

    def change(doc):
        changed = doc.materials["steel"].elastic.table.copy()
        changed[17, 1] = -0.5
        doc.materials["steel"].elastic.table = changed

    assert body_of(model, change) == """\
table = doc.materials['steel'].elastic.table.copy()
table[17, 1] = -0.5
doc.materials['steel'].elastic.table = table
"""


def test_cells_keep_their_bits(model):
    bits = struct.unpack(">d", bytes.fromhex("fff8000000000001"))[0]
    model.materials["steel"].elastic.table = numpy.ones((50, 2))

    def change(doc):
        changed = doc.materials["steel"].elastic.table.copy()
        changed[0] = (-0.0, bits)
        doc.materials["steel"].elastic.table = changed

    assert "nga.real" in body_of(model, change)


def test_what_was_made_and_went_leaves_nothing(model):
    def change(doc):
        with doc.edit("try something"):
            doc.Material(name="passing").Density(table=((1.0,),))
        with doc.edit("go on with it"):
            doc.materials["passing"].description = "on its way"
            doc.materials["steel"].Density(table=((1.0,),))
        with doc.edit("think better of it"):
            del doc.materials["passing"]
            del doc.materials["steel"].options["density"]

    assert body_of(model, change) == """\
# go on with it
doc.materials['steel'].Density(table=((1.0,),))

# think better of it
doc.materials['steel'].density = None
"""


def test_what_was_changed_and_changed_back_leaves_nothing(model):
    def change(doc):
        steel = doc.materials["steel"]
        steel.description = "a"
        steel.description = "SI"
        tests = doc.materials["rubber"].mullinsEffect.uniaxialTests
        tests.append(nga.UniaxialTestData())
        del tests[-1]
        doc.loadCases["service"].loads["x"] = 1.0
        del doc.loadCases["service"].loads["x"]
        doc.materials.rename("steel", "iron")
        doc.materials.rename("iron", "steel")

    assert body_of(model, change) == ""


LISTS = [(cls, field) for cls in concrete_classes() for field in fields_of(cls)
         if field["kind"] in ("options", "list")]


@pytest.mark.parametrize("cls, field", LISTS, ids=lambda one: getattr(one, "__name__", None) or
                         one["script"])
def test_each_list_of_each_class_tells_one_edit_in_a_line(cls, field):
    document, item = placed(cls)
    path, name = item.path, field["script"]

    def elements():
        return getattr(eval(path, {"documents": {document.name: document}}), name)

    def other():
        made = make_held(field)
        change_plain(made)
        return made

    item.setValues(**{name: [make_held(field) for _ in range(4)], "validate": False})
    for change in (lambda doc: elements().insert(2, other()),
                   lambda doc: elements().append(other()),
                   lambda doc: elements().insert(0, other()),
                   lambda doc: elements().__delitem__(2),
                   lambda doc: elements().pop(),
                   lambda doc: elements().__setitem__(1, other())):
        body = body_of(document, change)
        plain = [one for one in fields_of(type(other())) if one["kind"] not in
                 ("object", "option", "options", "list") or one["is_table"]]
        # A changed element is a line a field, and what is long is broken behind its brackets.
        starts = [line for line in body.splitlines() if line.startswith(("doc.", "del "))]
        assert 1 <= len(starts) <= max(len(plain), 1)
        assert f".{name} = " not in body


# ---- at random, against a plain model ------------------------------------------------------------

class Plain:
    """What the document should be, as plain dictionaries and lists."""

    def __init__(self):
        self.materials, self.cases, self.sections = {}, {}, {}

    def copy(self):
        other = Plain()
        other.materials = {name: {"text": one["text"], "tests": list(one["tests"]),
                                  "density": one["density"]}
                           for name, one in self.materials.items()}
        other.cases = {name: dict(loads) for name, loads in self.cases.items()}
        other.sections = {name: list(options) for name, options in self.sections.items()}
        return other

    def content(self):
        return self.materials, self.cases, self.sections


def content(doc):
    materials = {}
    for name, material in doc.materials.items():
        density = material.density
        materials[name] = {
            "text": material.description,
            "tests": [one.table[0, 0] for one in material.mullinsEffect.uniaxialTests],
            "density": None if density is None else density.table[0, 0]}
    cases = {name: dict(case.loads) for name, case in doc.loadCases.items()}
    sections = {name: [(type(one).__name__, one.components) for one in section.options]
                for name, section in doc.sections.items()}
    return materials, cases, sections


def one_edit(source, doc, plain):
    """One change of the document and of the model."""
    number = float(source.randrange(1, 1000))
    fresh = f"n{source.randrange(12)}"

    def test():
        return nga.UniaxialTestData(table=((number, 1.0),))

    kind = source.randrange(16)
    if kind == 0 and fresh not in plain.materials:
        doc.Material(name=fresh).MullinsEffect(validate=False)
        plain.materials[fresh] = {"text": "", "tests": [], "density": None}
    elif kind == 1 and fresh not in plain.cases:
        doc.LoadCase(name=fresh, validate=False)
        plain.cases[fresh] = {}
    elif kind == 2 and fresh not in plain.sections:
        doc.ConnectorSection(name=fresh, validate=False)
        plain.sections[fresh] = []
    elif kind == 3:
        of, here = source.choice([(plain.materials, doc.materials), (plain.cases, doc.loadCases),
                                  (plain.sections, doc.sections)])
        if of and source.random() < 0.4:
            name = source.choice(list(of))
            del here[name]
            del of[name]
    elif kind in (4, 5):
        of, here = source.choice([(plain.materials, doc.materials), (plain.cases, doc.loadCases),
                                  (plain.sections, doc.sections)])
        if not of:
            return
        old = source.choice(list(of))
        if fresh not in of:
            here.rename(old, fresh)
            of[fresh] = of.pop(old)
        elif fresh != old:
            here.rename(old, "aside")
            here.rename(fresh, old)
            here.rename("aside", fresh)
            of[old], of[fresh] = of[fresh], of[old]
    elif kind in (6, 7, 8, 9, 10) and plain.materials:
        name = source.choice(list(plain.materials))
        item, material = doc.materials[name], plain.materials[name]
        tests, numbers = item.mullinsEffect.uniaxialTests, material["tests"]
        place = source.randrange(len(numbers) + 1)
        if kind == 6:
            item.description = material["text"] = str(number)
        elif kind == 7:
            item.density = None if number < 300 else nga.Density(table=((number,),))
            material["density"] = None if number < 300 else number
        elif kind == 8:
            tests.insert(place, test())
            numbers.insert(place, number)
        elif kind == 9 and place < len(numbers):
            tests[place].table = ((number, 1.0),)
            numbers[place] = number
        elif kind == 10 and place < len(numbers):
            del tests[place]
            del numbers[place]
    elif kind in (11, 12, 13) and plain.cases:
        name = source.choice(list(plain.cases))
        loads, entries = doc.loadCases[name].loads, plain.cases[name]
        if kind == 11 and entries:
            gone = source.choice(list(entries))
            del loads[gone]
            del entries[gone]
        else:
            loads[fresh] = entries[fresh] = number
    elif kind in (14, 15) and plain.sections:
        name = source.choice(list(plain.sections))
        options, entries = doc.sections[name].options, plain.sections[name]
        place = source.randrange(len(entries) + 1)
        cls = source.choice([nga.ConnectorElasticity, nga.ConnectorDamping])
        components = (source.randrange(1, 7),)
        made = cls(components=components, validate=False)
        if kind == 14 or not entries:
            options.insert(place, made)
            entries.insert(place, (cls.__name__, components))
        elif place < len(entries) and number < 500:
            options[place] = made
            entries[place] = (cls.__name__, components)
        elif place < len(entries):
            del options[place]
            del entries[place]


class Stop(Exception):
    pass


@pytest.mark.parametrize("seed", range(25))
def test_random_edits_are_made_again_by_a_script_that_is_no_longer(seed, tmp_path):
    source = random.Random(seed)
    doc, plain = nga.new("random"), Plain()
    for _ in range(60):
        one_edit(source, doc, plain)
    start = nga.from_dict("start", doc.to_dict())
    doc.forget_history()
    # Beside the document: how the model was before each step.
    past, future = [], []
    for _ in range(80):
        kind = source.randrange(12)
        before, steps = plain.copy(), doc.undo_count
        if kind == 0:
            assert doc.undo() == bool(past)
            if past:
                future.append(plain)
                plain = past.pop()
            continue
        if kind == 1:
            assert doc.redo() == bool(future)
            if future:
                past.append(plain)
                plain = future.pop()
            continue
        if kind in (2, 3):
            fails = source.random() < 0.3
            try:
                with doc.edit(source.choice(("", "a reason", "another one"))):
                    for _ in range(source.randrange(6)):
                        one_edit(source, doc, plain)
                    if fails:
                        raise Stop
            except Stop:
                plain = before
        else:
            with doc.edit():
                one_edit(source, doc, plain)
        if doc.undo_count > steps:
            past.append(before)
            future.clear()
        assert content(doc) == plain.content()
    doc.journal.replay(start)
    assert content(start) == plain.content()
    assert start.to_json() == doc.to_json()
    while doc.undo():
        pass
    assert doc.journal.body == ""


@pytest.mark.parametrize("seed", range(25))
def test_the_script_of_random_edits_is_no_longer_than_what_was_done(seed):
    """Each edit of what is there already is one statement at most."""
    source = random.Random(1000 + seed)
    doc, plain = nga.new("random"), Plain()
    for _ in range(80):
        one_edit(source, doc, plain)
    start = nga.from_dict("start", doc.to_dict())
    doc.forget_history()
    made = 0
    for _ in range(source.randrange(1, 12)):
        records = len(doc.journal)
        one_edit(source, doc, plain)
        # A rename that changes places is three edits, a material that is made has an option.
        made += 3 if len(doc.journal) - records > 3 else 2 if len(doc.journal) - records > 1 else 1
    # A short list is sometimes shorter to say whole; it is broken into lines then.
    assert len(ast.parse(doc.journal.body).body) <= made, doc.journal.body
    doc.journal.replay(start)
    assert content(start) == plain.content()
