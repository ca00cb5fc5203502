"""Attribute models of finite-element pre-processors: materials, amplitudes, profiles, filters, load
cases and what else the library registers.

    import nga
    doc = nga.new('bracket')
    steel = doc.Material(name='steel')
    steel.Elastic(table=((210e3, 0.3),))
    doc.materials['steel'].elastic.type = nga.ISOTROPIC
    doc.save_as('bracket.nga')

Classes (nga.Elastic) and literals (nga.ISOTROPIC) are made from the library's own metadata.
"""
from typing import TYPE_CHECKING

from . import _made, _nga
from ._journal import Journal
from ._literal import Literal
from ._made import *
from ._model import (MISSING, Difference, Finding, FloatMap, Object, ObjectList, Options,
                     Repository, documents, empty_table, from_dict, new, open, real)
from ._nga import Error, Snapshot, StoreError, ValidationError

__version__ = "0.1.0"

# For "from nga import *": without open, which is Python's own.
__all__ = ["MISSING", "Difference", "Error", "Finding", "FloatMap", "Journal", "Literal", "Object",
           "ObjectList", "Options", "Repository", "Snapshot", "StoreError", "ValidationError",
           "documents", "empty_table", "from_dict", "new", "real"]
__all__ += _made.__all__

if not TYPE_CHECKING:
    def __getattr__(name):
        near = "" if name.startswith("_") else _nga.near(name, [*__all__, "open"])
        raise AttributeError(f"module 'nga' has no attribute {name!r}{near}")
