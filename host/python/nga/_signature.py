"""The signatures of constructors and of setValues, which take a class's fields by name."""


class _Wrapped:
    """Stands behind a function as what it wraps, for its signature alone. There are hundreds, so
    each is written when somebody asks for it."""

    __slots__ = ("_made", "_first", "_named")

    def __init__(self, made, first, named=False):
        self._made = made
        self._first = first
        self._named = named


class ConstructorSignature(_Wrapped):
    __slots__ = ()

    @property
    def __signature__(self):
        return constructor_signature(self._made, self._first, self._named)


class ValuesSignature(_Wrapped):
    __slots__ = ()

    def __init__(self, made):
        super().__init__(made, "self")

    @property
    def __signature__(self):
        from ._classes import all_fields
        return _signature(self._first, False,
                          [(field["script"], _UNCHANGED) for field in all_fields(self._made)])


class _Unchanged:
    """What setValues gives a field that is not given: no value says that."""

    __slots__ = ()
    # Known to no type checker, which would hold it against the types of the fields.
    __module__ = "nga"

    def __repr__(self):
        return "<unchanged>"


_UNCHANGED = _Unchanged()


def constructor_signature(made, first=None, named=False):
    """The fields with the values that they have when nothing is given."""
    from ._classes import all_fields
    usual = made(validate=False)
    return _signature(first, named, [(field["script"], _default(usual, field))
                                     for field in all_fields(made)])


def _default(usual, field):
    if field["is_table"]:
        # As scripts give it; reading one would ask for NumPy.
        return ()
    value = getattr(usual, field["script"])
    if field["kind"] == "map":
        return dict(value)
    if field["kind"] in ("options", "list"):
        return tuple(value)
    return value


def _signature(first, named, fields):
    from inspect import Parameter, Signature
    parameters = [Parameter(first, Parameter.POSITIONAL_OR_KEYWORD)] if first else []
    if named:
        parameters.append(Parameter("name", Parameter.KEYWORD_ONLY))
    known = {"name"} if named else set()
    for script, default in [*fields, ("validate", True)]:
        if script not in known:
            known.add(script)
            parameters.append(Parameter(script, Parameter.KEYWORD_ONLY, default=default))
    return Signature(parameters)
