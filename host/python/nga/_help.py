"""What help() says of a class."""
from . import _nga

_KINDS = {
    "int": "an integer", "float": "a number", "str": "a text", "bool": "True or False",
    "ints": "a sequence of integers", "floats": "a sequence of numbers",
    "map": "a mapping of names and numbers", "array": "rows of numbers",
}


def _type_text(field):
    from ._classes import class_of
    if field["kind"] == "literal":
        return ", ".join(field["literals"])
    if field["is_table"]:
        return "a table: rows of numbers"
    if field["kind"] in ("object", "option", "options", "list"):
        held = class_of[field["held"]].__name__
        return {"object": f"a {held}", "option": f"a {held}, or None",
                "options": f"a list of objects, {held}", "list": f"a list of {held}"}[field["kind"]]
    text = _KINDS[field["kind"]]
    return text + "".join(f", or {word}" for word, _ in field["words"])


def _default_text(field):
    default = field["default"]
    if default in (None, "None"):
        return ""
    return f" (default {default.replace('nga.', '')})"


def field_help(cls, name):
    """What a field is, in one line."""
    for field in vars(cls)["_facts"]["fields"]:
        if field["script"] == name:
            text = _type_text(field)
            return (f"one of {text}" if field["kind"] == "literal" else text) + _default_text(field)
    return None


def class_help(cls):
    from ._classes import all_fields
    facts = cls._facts
    lines = [f"{facts['name']}, as the library knows it."]
    fields = all_fields(cls)
    if fields:
        lines += ["", "Fields:"]
        width = max(len(field["script"]) for field in fields)
        for field in fields:
            lines.append(f"    {field['script']:{width}}  {_type_text(field)}"
                         + _default_text(field))
    rules = _nga.rules(facts["type_id"])
    if rules:
        lines += ["", "Rules that it may break:"]
        lines += [f"    {module} {code}: {message}" for module, code, message in rules]
    return "\n".join(lines)
