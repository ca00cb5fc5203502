#pragma once

#include "atr_String.h"
#include "mdl_RuleVisitor.h"

/// Codes are written as their numbers, by which rules and table are held against each other.
enum kmaC_ErrorEnm : int {};

/// The text of a code; empty beyond 46. Hosts raise some codes that no rule of this module
/// has.
atr_String kmaC_ErrorText(kmaC_ErrorEnm code);

[[noreturn]] void kmaC_Fail(kmaC_ErrorEnm code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void kmaC_Assert(bool condition, kmaC_ErrorEnm code) {
    if (!condition) kmaC_Fail(code);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const kmaC_Module;
