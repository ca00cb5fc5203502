"""The literals of enumerations, as constants."""


class Literal(str):
    """A literal such as nga.ISOTROPIC: prints as itself, and equals its text. One text has one
    literal, whichever enumerations know it."""

    __slots__ = ()
    _known: dict = {}

    def __new__(cls, text):
        found = cls._known.get(text)
        if found is None:
            found = cls._known[text] = str.__new__(cls, text)
        return found

    def __repr__(self):
        return str.__str__(self)

    def __reduce__(self):
        return Literal, (str.__str__(self),)
