"""A value for a field that is not its default."""
import nga
from conftest import concrete_classes


def changed_value(field, item):
    """What differs from what the field holds."""
    kind = field["kind"]
    now = getattr(item, field["script"])
    if field["is_table"]:
        return ((1.5, -0.25, 1e300), (2.5, 0.0, -3.0))
    if kind == "int":
        return 7 if now != 7 else 8
    if kind == "float":
        return 0.625 if now != 0.625 else 0.375
    if kind == "bool":
        return not now
    if kind == "str":
        return "a text with \u00e4 and \U0001f529"
    if kind == "literal":
        return next(literal for literal in field["literals"] if literal != now)
    if kind == "ints":
        return (3, -4, 5)
    if kind == "floats":
        return (0.5, -2.0)
    if kind == "map":
        return {"wind": -0.5, "snow": 2.0}
    made = make_held(field)
    if kind in ("object", "option"):
        return made
    return [made, made]


def make_held(field):
    """An object of a class that the field can hold."""
    for cls in concrete_classes():
        if any(level._facts["type_id"] == field["held"] for level in cls.__mro__
               if "_facts" in vars(level)):
            made = cls(validate=False)
            if field["kind"] == "object":
                change_plain(made)
            return made
    raise LookupError(field)


def change_plain(item):
    from conftest import fields_of
    for field in fields_of(type(item)):
        if field["kind"] not in ("object", "option", "options", "list") or field["is_table"]:
            setattr(item, field["script"], changed_value(field, item))


def holder_of(cls):
    """A collection and a name in a new document under which an object of the class can stand: itself
    where a collection holds it, else as an element or option of something that does."""
    from nga._classes import class_of
    for owner in concrete_classes():
        for field in owner_fields(owner):
            held = class_of.get(field["held"])
            if held and issubclass(cls, held):
                yield owner, field


def owner_fields(cls):
    from conftest import fields_of
    return [field for field in fields_of(cls)
            if field["kind"] in ("object", "option", "options", "list") and not field["is_table"]]


def wrong_type(field):
    """What no field of this kind takes."""
    return {"str": 5, "map": 5, "literal": 5, "bool": 1, "ints": 5, "floats": "5"}.get(
        field["kind"], nga.Literal("SOMETHING") if field["kind"] == "int" and not field["words"]
        else object())
