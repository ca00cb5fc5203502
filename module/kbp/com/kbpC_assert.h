#pragma once

#include "atr_String.h"
#include "mdl_RuleVisitor.h"

/// Codes are written as their numbers, by which rules and table are held against each other.
enum kbpC_ErrorEnm : int {};

/// The text of a code; empty beyond 38. Hosts raise some codes that no rule of this module
/// has.
atr_String kbpC_ErrorText(kbpC_ErrorEnm code);

[[noreturn]] void kbpC_Fail(kbpC_ErrorEnm code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void kbpC_Assert(bool condition, kbpC_ErrorEnm code) {
    if (!condition) kbpC_Fail(code);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const kbpC_Module;
