"""What is made from the metadata when the package is imported: classes, literals, and documents with
their collections and constructors."""
from . import _classes, _model

Document = _classes.make(globals(), _model.DocumentBase)

__all__ = sorted(name for name in globals() if not name.startswith("_"))
