"""Makes the Python classes from the registered metadata, when the package is imported."""
from . import _nga
from ._literal import Literal
from ._model import FloatMap, Object, ObjectList, Repository
from ._signature import ConstructorSignature, ValuesSignature

#: Every class's facts, as the library tells them, by TypeId.
facts_of: dict[int, dict] = {}
#: The classes by TypeId.
class_of: dict[int, type] = {}


def make(namespace, base):
    """Puts a class for each registered one, and a constant for each literal, into the namespace;
    gives the class of documents."""
    facts = _nga.classes()
    for one in facts:
        facts_of[one["type_id"]] = one
    _nga.set_views(ObjectList, FloatMap, _describe)
    for one in facts:
        _make_class(one, namespace)
    for one in facts:
        _add_constructors(one)
    document = type("Document", (base,), {"__module__": "nga", "__doc__": base.__doc__,
                                          "__slots__": (), "_collections": {}})
    for index, (name, held, classes) in enumerate(_nga.collections()):
        _add_collection(document, index, name, held, classes)
    return document


def _describe(cls, field):
    from ._help import field_help
    return field_help(cls, field)


def _make_class(facts, namespace):
    type_id = facts["type_id"]
    if type_id in class_of:
        return class_of[type_id]
    base = facts["base"]
    if base and base in facts_of:
        parent = _make_class(facts_of[base], namespace)
    else:
        parent = Object
    name = facts["constructor"] or facts["name"]
    made = type(Object)(name, (parent,), {
        "__slots__": (), "__module__": "nga", "_type_id": type_id, "_facts": facts,
        "_keyed": tuple(facts["keyed"]),
    })
    class_of[type_id] = made
    _nga.register_class(type_id, made)
    for field in facts["fields"]:
        literals = tuple(Literal(text) for text in field["literals"])
        words = tuple((Literal(text), value) for text, value in field["words"])
        for literal in literals:
            namespace.setdefault(str(literal), literal)
        for word, _ in words:
            namespace.setdefault(str(word), word)
        setattr(made, field["script"], _nga.make_field(type_id, field["script"], literals, words))
    # What scripts know by its owner's field alone has no constructor of its own.
    if not facts["is_table"]:
        namespace[name] = made
        made.setValues = _set_values(made)
    return made


def _set_values(made):
    def setValues(self, *, validate=True, **fields):
        _nga.set_values(self, fields, validate)

    setValues.__qualname__ = f"{made.__name__}.setValues"
    setValues.__module__ = "nga"
    setValues.__doc__ = Object.setValues.__doc__
    setValues.__wrapped__ = ValuesSignature(made)
    return setValues


def all_fields(cls):
    """The facts of a class's fields, those of its bases first."""
    fields = []
    for level in reversed(cls.__mro__):
        fields.extend(vars(level).get("_facts", {"fields": ()})["fields"])
    return fields


def _add_constructors(facts):
    owner = class_of[facts["type_id"]]
    held = {field["script"]: field["held"] for field in all_fields(owner)}
    for script, name in facts["constructors"].items():
        if not hasattr(owner, name):
            setattr(owner, name, _constructor(owner, script, name, class_of[held[script]]))
    for type_id, script in facts["appended"].items():
        made = class_of[type_id]
        if not hasattr(owner, made.__name__):
            setattr(owner, made.__name__, _constructor(owner, script, made.__name__, made))


def _constructor(owner, script, name, made):
    type_id = made._type_id

    def construct(self, *, validate=True, **fields):
        return _nga.make_in(self, script, type_id, fields, validate)

    construct.__name__ = name
    construct.__qualname__ = f"{owner.__name__}.{name}"
    construct.__module__ = "nga"
    construct.__doc__ = (f"Makes the {made.__name__} in .{script} from these fields, and checks it "
                         f"unless validate is false. See help(nga.{made.__name__}).")
    construct.__wrapped__ = ConstructorSignature(made, "self")
    return construct


def _add_collection(document, index, name, held, classes):
    def repository(self):
        return Repository(self, index, name)

    repository.__doc__ = f"The {class_of[held].__name__} objects by name."
    document._collections[name] = index
    setattr(document, name, property(repository))
    for type_id in classes:
        _add_document_constructor(document, index, class_of[type_id])


def _add_document_constructor(document, index, made):
    type_id = made._type_id
    name = made.__name__

    def construct(self, *, name, validate=True, **fields):
        return self._session.make_entry(self, index, type_id, name, fields, validate)

    construct.__name__ = name
    construct.__qualname__ = f"Document.{name}"
    construct.__module__ = "nga"
    construct.__doc__ = (f"Makes a {name} of that name from these fields, and checks it unless "
                         f"validate is false. See help(nga.{name}).")
    construct.__wrapped__ = ConstructorSignature(made, "self", named=True)
    setattr(document, name, construct)
