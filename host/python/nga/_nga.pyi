# The extension is known by what the package makes of it; only what others build on stands here.
from typing import Any, Generic, TypeVar, overload

_Given = TypeVar("_Given", covariant=True)
_Taken = TypeVar("_Taken", contravariant=True)

class Error(ValueError):
    message: str
    place: str
    line: int
    expected: str

class StoreError(OSError):
    path: str
    cause: str

class ValidationError(ValueError):
    message: str
    path: str
    module: str
    code: int
    file: str
    line: int

class Field(Generic[_Given, _Taken]):
    @overload
    def __get__(self, instance: None, owner: type | None = ..., /) -> Field[_Given, _Taken]: ...
    @overload
    def __get__(self, instance: Object, owner: type | None = ..., /) -> _Given: ...
    def __set__(self, instance: Object, value: _Taken, /) -> None: ...
    def __delete__(self, instance: Object, /) -> None: ...

class Object:
    @property
    def path(self) -> str | None: ...
    @property
    def document(self) -> Any: ...
    @property
    def alive(self) -> bool: ...

class Snapshot: ...

def __getattr__(name: str) -> Any: ...
