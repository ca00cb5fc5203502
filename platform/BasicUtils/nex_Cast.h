#pragma once

#include <cstdint>

/// The check before a reference downcast between persistent classes: true if an object whose
/// DynTypeId() is `dynamicType` is a `targetType`. Raises a nex_TextException at file and line
/// otherwise, as callers cast whatever the answer is.
bool nex_canDynamicCastRef(unsigned targetType, unsigned dynamicType, char const* file, int line);
