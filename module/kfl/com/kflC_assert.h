#pragma once

#include "atr_String.h"
#include "mdl_RuleVisitor.h"

/// The text of a code; empty beyond 6. Hosts raise some codes that no rule of this module
/// has.
atr_String kflC_ErrorText(int code);

[[noreturn]] void kflC_Fail(int code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void kflC_Assert(bool condition, int code) {
    if (!condition) kflC_Fail(code);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const kflC_Module;
