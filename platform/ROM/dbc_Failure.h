#pragma once

#include <string>

/// Ends a conversion: raises a nex_TextException with that text.
[[noreturn]] void dbc_Fail(std::string const& text);
