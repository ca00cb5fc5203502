#pragma once

#include "atr_String.h"
#include "mdl_RuleVisitor.h"

/// The text of a code; empty beyond 22. Hosts raise some codes that no rule of this module
/// has.
atr_String kamC_ErrorText(int code);

[[noreturn]] void kamC_Fail(int code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void kamC_Assert(bool condition, int code) {
    if (!condition) kamC_Fail(code);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const kamC_Module;
