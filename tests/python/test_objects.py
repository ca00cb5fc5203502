import collections.abc
import copy
import inspect
import pickle
import threading
import xml.dom.minidom

import pytest

import nga
from conftest import concrete_classes, fields_of


@pytest.fixture
def steel(doc):
    return doc.Material(name="steel")


def test_options_are_reached_by_key_and_by_attribute(steel):
    assert steel.elastic is None
    with pytest.raises(KeyError, match="is not set"):
        steel.options["elastic"]
    with pytest.raises(KeyError, match="did you mean 'elastic'"):
        steel.options["elstic"]
    elastic = steel.Elastic(table=((210e3, 0.3),))
    assert steel.options["elastic"] is elastic and steel.elastic is elastic
    assert list(steel.options) == ["elastic"] and len(steel.options) == 1
    assert "elastic" in steel.options and "plastic" not in steel.options
    del steel.options["elastic"]
    assert steel.elastic is None


def test_a_class_in_one_member_has_a_constructor_of_its_name(steel):
    steel.Elastic(table=((210e3, 0.3),))
    stress = steel.elastic.FailStress(table=((1.0, 2.0, 3.0, 4.0, 5.0),))
    assert type(stress) is nga.FailStress
    assert stress.path == ("documents['bench'].materials['steel'].options['elastic']"
                           ".options['failStress']")


def test_a_class_in_several_members_has_one_constructor_a_member(steel):
    made = steel.DuctileDamageInitiation(table=((0.1, 0.2, 0.3),))
    assert made is steel.ductileDamageInitiation
    assert type(made) is nga.DuctileDamageInitiation if hasattr(nga, "DuctileDamageInitiation") \
        else type(made).__name__ == "DamageInitiation"
    assert steel.shearDamageInitiation is None


def test_a_failing_constructor_leaves_everything_as_it_was(doc, steel):
    steps, records = doc.undo_count, len(doc.journal)
    text = doc.to_json()
    for failing, kind in (
            (lambda: steel.Elastic(table="x"), TypeError),
            (lambda: steel.Elastic(tabel=()), (AttributeError, TypeError)),
            (lambda: steel.Elastic(type="ISO"), ValueError),
            (lambda: steel.Elastic(noCompression=True, noTension=True), nga.ValidationError),
            (lambda: doc.Material(name="iron", elastik=None), (AttributeError, TypeError)),
            (lambda: doc.LoadCase(name="a", loads={"x": 0.0}), nga.ValidationError)):
        with pytest.raises(kind):
            failing()
    assert doc.to_json() == text
    assert (doc.undo_count, len(doc.journal)) == (steps, records)


def test_set_values_sets_all_or_nothing(doc, steel):
    elastic = steel.Elastic(table=((210e3, 0.3),))
    steps, records = doc.undo_count, len(doc.journal)
    with pytest.raises(TypeError):
        elastic.setValues(type=nga.LAMINA, dependencies="two")
    with pytest.raises(nga.ValidationError) as failure:
        elastic.setValues(type=nga.LAMINA, noCompression=True, noTension=True)
    assert elastic.type is nga.ISOTROPIC and elastic.noCompression is False
    assert (doc.undo_count, len(doc.journal)) == (steps, records)
    assert failure.value.path == elastic.path
    assert (failure.value.module, failure.value.code) == ("kma", 34)
    assert failure.value.message.startswith("No compression and No tension")
    assert failure.value.file == "generated/module/kma/com/impl/kmaC_assert"
    assert failure.value.line > 0
    assert isinstance(failure.value, ValueError)
    elastic.setValues(noCompression=True, noTension=True, validate=False)
    with pytest.raises(nga.ValidationError):
        elastic.validate()
    assert doc.undo_count == steps + 1
    elastic.setValues(noTension=False)
    elastic.validate()


def test_a_rule_of_an_inner_object_is_told_with_its_own_path(steel):
    with pytest.raises(nga.ValidationError) as failure:
        steel.setValues(density=nga.Density(table=((1.0,), (0.0,)), validate=False))
    assert failure.value.path.endswith(".materials['steel'].options['density'].table")
    assert steel.density is None


def test_assignment_does_not_ask_the_rules(steel):
    elastic = steel.Elastic(table=((210e3, 0.3),))
    elastic.noCompression = True
    elastic.noTension = True
    assert elastic.findings()[0].code == 34


def test_an_unknown_field_names_near_ones(steel):
    elastic = steel.Elastic(table=((210e3, 0.3),))
    for use in (lambda: elastic.modulii, lambda: setattr(elastic, "modulii", 1),
                lambda: elastic.setValues(modulii=1), lambda: nga.Elastic(modulii=1)):
        with pytest.raises((AttributeError, TypeError), match="did you mean 'moduli'"):
            use()


def test_numbers_are_taken_as_python_has_them(steel):
    import numpy
    elastic = steel.Elastic(table=((1, 2.5), (numpy.float32(3), numpy.int64(4))))
    assert elastic.table.tolist() == [[1.0, 2.5], [3.0, 4.0]]
    elastic.dependencies = numpy.int32(2)
    assert elastic.dependencies == 2 and type(elastic.dependencies) is int
    elastic.noTension = numpy.bool_(True)
    assert elastic.noTension is True
    for wrong in (True, 1.0, "1", numpy.float64(1), None.__class__):
        with pytest.raises(TypeError):
            elastic.dependencies = wrong
    for beyond in (2**31, -2**31 - 1, 10**30):
        with pytest.raises(ValueError, match="out of range"):
            elastic.dependencies = beyond
    assert elastic.dependencies == 2


def test_values_that_run_python_code_do_no_harm(steel):
    elastic = steel.Elastic(table=((1.0, 2.0),))
    rows = [[1.0, 2.0], [3.0, 4.0]]

    class Clears:
        def __float__(self):
            rows.clear()
            steel.elastic = None
            return 5.0

    rows[0][0] = Clears()
    with pytest.raises(ReferenceError):
        elastic.table = rows
    steel.Elastic(table=((1.0, 2.0),))

    class Fails:
        def __float__(self):
            raise ZeroDivisionError

    with pytest.raises(ZeroDivisionError):
        elastic.table = ((Fails(), 1.0),)
    with pytest.raises(ValueError, match="out of range"):
        elastic.table = ((10**400, 1.0),)
    assert elastic.table.tolist() == [[1.0, 2.0]]

    class Pairs(dict):
        def items(self):
            return [5]

    case = steel.document.LoadCase(name="a")
    for wrong in (Pairs(), 5, "wind", ["wind"]):
        with pytest.raises(TypeError):
            case.loads = wrong


def test_a_long_list_is_walked_with_all_its_handles_kept(steel):
    mullins = steel.MullinsEffect(validate=False)
    mullins.uniaxialTests = [nga.UniaxialTestData(table=((float(i), 1.0),)) for i in range(5000)]
    kept = list(mullins.uniaxialTests)
    assert kept[4321].table[0, 0] == 4321.0
    assert kept[4321] is mullins.uniaxialTests[4321]


def test_a_number_that_is_not_set_is_none_or_its_literal(steel):
    hyper = nga.Hyperelastic(validate=False)
    assert hyper.beta is nga.FITTED_VALUE
    hyper.beta = 0.5
    assert hyper.beta == 0.5
    hyper.beta = nga.FITTED_VALUE
    assert hyper.to_dict() == {}
    with pytest.raises(ValueError, match="FITTED_VALUE"):
        hyper.beta = "FITED"


def test_literals_are_texts_that_print_as_themselves():
    assert repr(nga.ISOTROPIC) == str(nga.ISOTROPIC) == f"{nga.ISOTROPIC}" == "ISOTROPIC"
    assert nga.ISOTROPIC == "ISOTROPIC"
    assert pickle.loads(pickle.dumps(nga.ISOTROPIC)) is nga.ISOTROPIC
    assert copy.deepcopy(nga.ISOTROPIC) is nga.ISOTROPIC


def test_a_handle_follows_its_path_and_tells_when_it_has_gone(doc, steel):
    elastic = steel.Elastic(table=((210e3, 0.3),))
    path = elastic.path
    doc.undo()
    with pytest.raises(ReferenceError) as failure:
        elastic.type
    assert path in str(failure.value)
    assert not elastic.alive and repr(elastic) == f"<Elastic {path} (gone)>"
    for use in (lambda: setattr(elastic, "type", nga.LAMINA), lambda: elastic.validate(),
                lambda: elastic.setValues(type=nga.LAMINA), lambda: elastic.table,
                lambda: elastic.FailStress(validate=False), lambda: elastic.to_dict()):
        with pytest.raises(ReferenceError):
            use()
    doc.redo()
    assert elastic.alive and elastic.table[0, 1] == 0.3
    doc.materials.rename("steel", "iron")
    assert not elastic.alive and not steel.alive
    doc.materials.rename("iron", "steel")
    assert elastic.alive
    del doc.materials["steel"]
    with pytest.raises(ReferenceError):
        steel.description


def test_a_handle_does_not_pass_to_an_object_of_another_class(doc):
    tabular = doc.TabularAmplitude(name="a", data=((0.0, 0.0), (1.0, 1.0)))
    doc.amplitudes["a"] = nga.Decay(maximum=1.0, validate=False) if hasattr(nga, "Decay") else \
        nga.DecayAmplitude(validate=False)
    with pytest.raises(ReferenceError, match="another object"):
        tabular.data


def test_one_object_has_one_handle(doc, steel):
    steel.Elastic(table=((210e3, 0.3),))
    assert doc.materials["steel"] is steel
    assert steel.elastic is doc.materials["steel"].options["elastic"]


def test_lists_of_objects_are_lists(steel):
    mullins = steel.MullinsEffect(validate=False)
    tests = mullins.uniaxialTests
    assert len(tests) == 0
    one, two = nga.UniaxialTestData(table=((1.0, 2.0),)), nga.UniaxialTestData(table=((3.0, 4.0),))
    tests.append(one)
    tests.insert(0, two)
    tests.extend([one])
    assert tests == [two, one, one]
    assert tests[0].path == mullins.path + ".uniaxialTests[0]"
    assert tests[-1] is tests[2]
    first = tests[0]
    del tests[0]
    assert first == one  # what stands in its place now
    tests[1] = two
    assert [*tests] == [one, two]
    tests[:] = []
    assert len(tests) == 0 and not first.alive
    with pytest.raises(IndexError):
        tests[0]
    with pytest.raises(TypeError):
        tests.append(5)
    with pytest.raises(TypeError):
        mullins.uniaxialTests = [one, 5]
    assert len(tests) == 0


def test_a_list_of_an_abstract_class_has_a_constructor_for_each_class(doc):
    hinge = doc.ConnectorSection(name="hinge")
    elasticity = hinge.ConnectorElasticity(validate=False)
    damping = hinge.ConnectorDamping(validate=False)
    assert list(hinge.options) == [elasticity, damping]
    assert hinge.options[1] is damping
    assert damping.path == "documents['bench'].sections['hinge'].options[1]"
    assert not hasattr(nga.MullinsEffect, "UniaxialTestData")  # three lists could be meant


def test_a_number_with_a_literal_takes_and_gives_it(doc):
    lock = nga.ConnectorLock(validate=False)
    lock.lockingComponent = nga.ALL
    assert lock.lockingComponent is nga.ALL
    assert nga.ConnectorLock.from_dict(lock.to_dict()) == lock
    lock.lockingComponent = 3
    assert lock.lockingComponent == 3


def test_maps_are_maps(doc):
    case = doc.LoadCase(name="service", loads={"wind": 1.0})
    case.loads["snow"] = 0.1
    assert dict(case.loads) == {"snow": pytest.approx(0.1), "wind": 1.0}
    assert eval(case.path + ".loads['wind']", {"documents": nga.documents}) == 1.0
    del case.loads["wind"]
    assert list(case.loads) == ["snow"]
    with pytest.raises(KeyError, match="snow"):
        case.loads["snwo"]
    with pytest.raises(TypeError):
        case.loads["snow"] = "heavy"
    with pytest.raises(ValueError):
        case.loads["snow"] = 1e300
    with pytest.raises(ValueError):
        case.loads["it's"] = 1.0
    assert list(case.loads) == ["snow"]


def test_an_object_of_no_document_is_copied_into_one(doc, steel):
    free = nga.Density(table=((7850.0,),))
    steel.density = free
    free.table = ((1.0,),)
    assert steel.density.table[0, 0] == 7850.0
    assert free.path is None and free.document is None
    assert repr(free) == "nga.Density(table=((1.0,),))"
    assert steel.density != free
    with pytest.raises(TypeError, match="Density"):
        steel.density = nga.Elastic(validate=False)


def test_abstract_classes_are_not_made():
    with pytest.raises(TypeError):
        nga.kmaC_MaterialOption()
    with pytest.raises(TypeError):
        nga.Object()


def test_reprs_are_short_and_true(doc, steel):
    assert repr(doc) == "<Document documents['bench']>"
    assert repr(doc.materials) == "<documents['bench'].materials: 1 object>"
    assert repr(steel) == "<Material documents['bench'].materials['steel']>"
    free = nga.Elastic(type=nga.LAMINA, failStress=nga.FailStress(table=((1.0,),), validate=False))
    assert eval(repr(free)) == free


def test_pickled_and_copied_objects_belong_to_no_document(steel):
    elastic = steel.Elastic(table=((210e3, float("nan")), (-0.0, float("inf"))))
    for other in (pickle.loads(pickle.dumps(elastic)), copy.copy(elastic), copy.deepcopy(elastic),
                  nga.Elastic.from_dict(elastic.to_dict())):
        assert other == elastic and other.path is None
        assert other.table.tobytes() == elastic.table.tobytes()
    with pytest.raises(nga.Error):
        nga.Elastic.from_dict({"tpe": 1})


def test_a_field_out_of_its_class_takes_objects_of_that_class_alone(doc):
    type_of = nga.Elastic.__dict__["type"]
    density = nga.Density(table=((1.0,),))
    material = doc.Material(name="steel")
    for stranger in (3, "x", density, material, object()):
        with pytest.raises(TypeError, match="Elastic.type is no field"):
            type_of.__get__(stranger, int)
        with pytest.raises(TypeError, match="Elastic.type is no field"):
            type_of.__set__(stranger, nga.LAMINA)
    assert density == nga.Density(table=((1.0,),))
    elastic = nga.Elastic()
    type_of.__set__(elastic, nga.LAMINA)
    assert type_of.__get__(elastic) == nga.LAMINA
    # A field of a base is one of its classes.
    amplitude = nga.DecayAmplitude()
    for level in type(amplitude).__mro__[1:]:
        for name, field in vars(level).items():
            if type(field) is type(type_of):
                assert field.__get__(amplitude) == getattr(amplitude, name)


def test_a_field_in_another_class_is_none_of_it():
    try:
        nga.Density.borrowed = nga.Elastic.__dict__["type"]
        density = nga.Density(table=((1.0,),))
        with pytest.raises(TypeError):
            density.borrowed
        with pytest.raises(TypeError):
            density.borrowed = nga.LAMINA
        with pytest.raises(AttributeError):
            density.setValues(borrowed=nga.LAMINA)
        with pytest.raises(AttributeError):
            nga.Density(borrowed=nga.LAMINA)
    finally:
        del nga.Density.borrowed


def test_an_object_keeps_its_class():
    elastic = nga.Elastic(table=((1.0, 2.0),))
    with pytest.raises(TypeError, match="cannot be changed"):
        elastic.__class__ = nga.Density
    assert type(elastic) is nga.Elastic and elastic.table.shape == (1, 2)
    object.__dict__["__class__"].__set__(elastic, nga.Density)
    with pytest.raises(TypeError):
        elastic.table
    for make in (nga.Elastic, nga.Density, nga.Object):
        with pytest.raises(TypeError):
            object.__new__(make)


def test_a_constructor_of_another_class_and_a_view_of_no_list_are_refused(doc):
    density = nga.Density(table=((1.0,),))
    with pytest.raises((TypeError, AttributeError)):
        nga.Elastic.FailStress(density, table=((1.0,),), validate=False)
    for field in ("table", "dependencies", "nothing"):
        with pytest.raises((TypeError, AttributeError)):
            len(nga.ObjectList(density, field))
        with pytest.raises((TypeError, AttributeError)):
            nga.ObjectList(density, field).append(nga.Elastic())


# ---- what tools ask of classes -------------------------------------------------------------------

@pytest.mark.parametrize("cls", concrete_classes(), ids=lambda cls: cls.__name__)
def test_every_class_tells_its_signature(cls):
    signature = inspect.signature(cls)
    names = [field["script"] for field in fields_of(cls)]
    assert list(signature.parameters) == [*names, "validate"]
    assert all(one.kind is one.KEYWORD_ONLY for one in signature.parameters.values())
    # What it gives as defaults makes the same object as giving nothing.
    defaults = {name: signature.parameters[name].default for name in names}
    assert cls(**(defaults | {"validate": False})) == cls(validate=False)
    values = inspect.signature(cls(validate=False).setValues)
    assert list(values.parameters) == [*names, "validate"]


def test_constructors_tell_their_signatures(doc, steel):
    fields = [field["script"] for field in fields_of(nga.Elastic)]
    assert list(inspect.signature(steel.Elastic).parameters) == [*fields, "validate"]
    assert list(inspect.signature(nga.Material.Elastic).parameters) == ["self", *fields, "validate"]
    assert inspect.signature(steel.Elastic).parameters["moduli"].default is nga.LONG_TERM
    assert list(inspect.signature(doc.LoadCase).parameters)[0] == "name"
    assert inspect.signature(doc.LoadCase).parameters["name"].default is inspect.Parameter.empty
    hinge = doc.ConnectorSection(name="hinge")
    assert "components" in inspect.signature(hinge.ConnectorDamping).parameters
    inspect.signature(steel.Elastic).bind(table=((1.0, 2.0),), validate=False)
    with pytest.raises(TypeError):
        inspect.signature(steel.Elastic).bind(tabel=())
    # Of what cannot be made, and of classes of one's own, Python says what it can.
    assert inspect.signature(nga.kmaC_MaterialOption)
    assert inspect.signature(type("Own", (nga.Elastic,), {}))


def test_fields_are_documented():
    assert nga.Elastic.moduli.__doc__ == "one of INSTANTANEOUS, LONG_TERM (default LONG_TERM)"
    assert nga.Elastic.table.__doc__ == "a table: rows of numbers (default ())"
    assert nga.Elastic.dependencies.__doc__ == "an integer (default 0)"
    assert nga.Elastic.failStress.__doc__ == "a FailStress, or None"
    assert nga.Hyperelastic.beta.__doc__.startswith("a number, or FITTED_VALUE")
    assert nga.Elastic.moduli.__objclass__ is nga.Elastic
    for cls in concrete_classes():
        for field in fields_of(cls):
            assert getattr(cls, field["script"]).__doc__


def test_a_mistyped_name_of_the_module_gets_near_ones():
    with pytest.raises(AttributeError, match="'Elsatic' .did you mean .*'Elastic'"):
        nga.Elsatic
    with pytest.raises(AttributeError, match="ISOTROPIC"):
        nga.ISOTROPC
    with pytest.raises(AttributeError, match="no attribute '__nothing__'$"):
        nga.__nothing__
    assert not hasattr(nga, "_nothing")
    with pytest.raises(ImportError):
        from nga import Elsatic


def test_objects_are_no_keys(doc, steel):
    """They are equal by content, and that changes."""
    free = nga.Density(table=((1.0,),))
    for item in (steel, free, doc.materials, steel.options):
        with pytest.raises(TypeError, match="unhashable type"):
            hash(item)
        with pytest.raises(TypeError, match="unhashable type"):
            {item: 1}
        assert not isinstance(item, collections.abc.Hashable)
    assert {steel.path: 1}[steel.path] == 1 and hash(doc) == hash(doc)


def test_options_are_assigned_by_key(doc, steel):
    steel.options["density"] = nga.Density(table=((1.0,),))
    assert steel.density.table[0, 0] == 1.0
    steel.options["density"] = None
    assert steel.density is None
    steel.options["elastic"] = nga.Elastic(table=((1.0, 0.3),))
    with pytest.raises(TypeError, match="Material.elastic"):
        steel.options["elastic"] = nga.Density(table=((1.0,),))
    with pytest.raises(KeyError, match="did you mean 'elastic'"):
        steel.options["elstic"] = nga.Elastic()
    assert steel.elastic.table[0, 0] == 1.0
    assert steel.options.pop("elastic") is not None and len(steel.options) == 0
    steps = doc.undo_count
    for wrong in ({"elstic": nga.Elastic()}, {"density": nga.Elastic()}):
        with pytest.raises((KeyError, TypeError)):
            steel.options.update({"elastic": nga.Elastic()}, **wrong)
    assert len(steel.options) == 0 and doc.undo_count == steps
    steel.options.update(elastic=nga.Elastic(), density=nga.Density())
    assert sorted(steel.options) == ["density", "elastic"] and doc.undo_count == steps + 1
    steps = doc.undo_count
    steel.options.clear()
    assert len(steel.options) == 0 and doc.undo_count == steps + 1


def test_all_options_are_assigned_as_one_step(doc, steel):
    steel.Elastic(table=((1.0, 0.3),))
    iron = doc.Material(name="iron")
    iron.Density(table=((2.0,),))
    iron.Plastic(table=((3.0, 0.0),))
    steps = doc.undo_count
    steel.options = iron.options
    assert sorted(steel.options) == ["density", "plastic"] and doc.undo_count == steps + 1
    assert steel.density == iron.density and steel.elastic is None
    steel.options = {"elastic": nga.Elastic()}
    assert list(steel.options) == ["elastic"]
    text = doc.to_json()
    for wrong, kind in ((5, TypeError), ([nga.Elastic()], TypeError), (None, TypeError),
                        ({"elstic": nga.Elastic()}, KeyError),
                        ({"density": nga.Density(), "elastic": 5}, TypeError)):
        with pytest.raises(kind):
            steel.options = wrong
    with pytest.raises(TypeError, match="expected a mapping of names and objects"):
        steel.options = 5
    assert doc.to_json() == text
    steel.options = {}
    assert len(steel.options) == 0


def test_views_show_themselves_in_a_notebook(doc, steel):
    steel.Elastic(type=nga.LAMINA, table=((1.0, 2.0),))
    mullins = steel.MullinsEffect(validate=False)
    assert "no elements" in mullins.uniaxialTests._repr_html_()
    mullins.uniaxialTests = [nga.UniaxialTestData(table=((float(i), 2.0),)) for i in range(30)]
    case = doc.LoadCase(name="service", loads={"<wind>": 1.5})
    free = nga.Material(elastic=nga.Elastic(type=nga.LAMINA))
    for view, parts in ((steel.options, ("elastic", "LAMINA", "materials[")),
                        (mullins.uniaxialTests, ("[0]", "[19]", "10 more elements", "19.0")),
                        (case.loads, ("&lt;wind&gt;", "1.5")),
                        (free.options, ("elastic", "LAMINA", "Material")),
                        (doc.Material(name="empty").options, ("none is set",))):
        text = view._repr_html_()
        xml.dom.minidom.parseString(f"<div>{text}</div>")
        for part in parts:
            assert part in text
    options = steel.options
    del doc.materials["steel"]
    assert "(gone)" in options._repr_html_()


def test_everything_of_an_object_is_refused_in_another_thread(doc, steel):
    elastic = steel.Elastic(table=((1.0, 2.0),))
    mullins = steel.MullinsEffect(validate=False)
    case = doc.LoadCase(name="service", loads={"wind": 1.0})
    free = nga.Density(table=((1.0,),))
    options, tests, loads = steel.options, mullins.uniaxialTests, case.loads
    uses = [
        lambda: elastic.path, lambda: elastic.document, lambda: elastic.alive,
        lambda: elastic == free, lambda: elastic.type, lambda: elastic.table,
        lambda: elastic.to_dict(), lambda: elastic.validate(), lambda: elastic.findings(),
        lambda: elastic.setValues(type=nga.LAMINA), lambda: elastic.sort(1),
        lambda: elastic.FailStress(validate=False), lambda: copy.copy(elastic),
        lambda: pickle.dumps(elastic), lambda: elastic._repr_html_(),
        lambda: setattr(elastic, "type", nga.LAMINA), lambda: delattr(steel, "elastic"),
        lambda: options["elastic"], lambda: len(options), lambda: list(options),
        lambda: options.clear(), lambda: setattr(steel, "options", {}),
        lambda: len(tests), lambda: tests.append(nga.UniaxialTestData()), lambda: tests[0],
        lambda: loads["wind"], lambda: dict(loads), lambda: loads.update(wind=2.0),
        lambda: doc.materials["steel"], lambda: doc.materials.path, lambda: list(doc.materials),
        lambda: doc.forget_history(), lambda: doc.edit().__enter__(), lambda: doc.findings(),
        lambda: doc.validate(), lambda: doc.journal.body, lambda: doc._repr_html_(),
        lambda: free.path, lambda: free.document, lambda: free.alive, lambda: free.table,
        lambda: options._repr_html_(), lambda: tests._repr_html_(), lambda: loads._repr_html_()]
    refused, shown = [], []

    def misuse():
        for use in uses:
            try:
                refused.append(("passed", use()))
            except RuntimeError as failure:
                refused.append(str(failure))
        shown.extend(map(repr, (elastic, free, options, tests, loads, doc.materials, doc.journal)))

    text = doc.to_json()
    thread = threading.Thread(target=misuse)
    thread.start()
    thread.join()
    assert len(refused) == len(uses)
    assert [one for one in refused if "belongs to the thread" not in one] == []
    assert all("of another thread" in one for one in shown) and len(shown) == 7
    assert doc.to_json() == text


def test_the_text_of_a_wrong_literal_says_where(doc, steel):
    elastic = steel.Elastic()
    for use in (lambda: setattr(elastic, "type", "ISO"), lambda: elastic.setValues(type="ISO"),
                lambda: nga.Elastic(type="ISO"), lambda: steel.Elastic(type="ISO")):
        with pytest.raises(ValueError, match=r"^Elastic\.type: .*ISOTROPIC") as failure:
            use()
        assert not isinstance(failure.value, nga.ValidationError)


def test_half_a_character_is_refused_where_texts_are_kept(doc, steel):
    half = "half \ud800"
    for use in (lambda: setattr(steel, "description", half), lambda: doc.Material(name=half),
                lambda: nga.new(half), lambda: doc.materials[half],
                lambda: doc.materials.rename("steel", half),
                lambda: doc.LoadCase(name="x", loads={half: 1.0})):
        with pytest.raises(ValueError, match=r"'half \\ud800' has half of a character"):
            use()
    assert steel.description == "" and list(doc.materials) == ["steel"]


def test_what_is_taken_away_is_given_as_an_object_of_no_document(doc, steel):
    steel.Density(table=((1.0,),))
    mullins = steel.MullinsEffect(validate=False)
    mullins.uniaxialTests = [nga.UniaxialTestData(table=((float(i), 1.0),)) for i in range(5)]
    tests = mullins.uniaxialTests
    assert tests.pop(1).table[0, 0] == 1.0 and tests.pop().table[0, 0] == 4.0
    assert [one.table[0, 0] for one in tests] == [0.0, 2.0, 3.0]
    tests.reverse()
    assert [one.table[0, 0] for one in tests] == [3.0, 2.0, 0.0]
    with pytest.raises(IndexError):
        tests.pop(3)
    density = steel.options.pop("density")
    assert density == nga.Density(table=((1.0,),)) and density.path is None
    assert steel.options.pop("density", 5) == 5
    with pytest.raises(KeyError):
        steel.options.pop("density")
    steel.Elastic(table=((2.0, 0.3),))
    name, taken = steel.options.popitem()
    assert name == "elastic" and taken.table[0, 0] == 2.0 and steel.elastic is None
    with pytest.raises(KeyError):
        steel.options.popitem()
    steel.description = "taken"
    taken = doc.materials.pop("steel")
    assert taken.description == "taken" and not steel.alive
    assert doc.materials.pop("steel", None) is None


def test_views_change_as_one_step(doc, steel):
    other = nga.new("other")
    for name in ("a", "b"):
        other.Material(name=name, description=name)
    steps = doc.undo_count
    doc.materials.update(other.materials)
    assert list(doc.materials) == ["a", "b", "steel"] and doc.undo_count == steps + 1
    with pytest.raises(TypeError):
        doc.materials.update({"c": other.materials["a"], "d": nga.Density()})
    assert list(doc.materials) == ["a", "b", "steel"]
    doc.materials.clear()
    assert len(doc.materials) == 0 and doc.undo_count == steps + 2
    doc.undo()
    mullins = steel.MullinsEffect(validate=False)
    mullins.uniaxialTests = [nga.UniaxialTestData()] * 3
    case = doc.LoadCase(name="service", loads={"wind": 1.0})
    steps = doc.undo_count
    mullins.uniaxialTests.clear()
    case.loads.update({"snow": 2.0}, ice=3.0)
    case.loads.clear()
    assert doc.undo_count == steps + 3
    doc.undo()
    assert dict(case.loads) == {"ice": 3.0, "snow": 2.0, "wind": 1.0}
