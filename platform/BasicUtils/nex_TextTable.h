#pragma once

#include <cstddef>

#include "atr_String.h"

/// The message of a code in a table of messages by code; empty beyond the table, so that a caller
/// with a newer list of codes still fails as a failure and not as a read out of bounds.
template <std::size_t N>
atr_String nex_TextOfCode(char const* const (&texts)[N], int code) {
    if (code < 0 || static_cast<std::size_t>(code) >= N) return atr_String();
    return atr_raw(texts[code]);
}
