#pragma once

#include "atr_String.h"
#include "cow_String.h"
#include "mdl_RuleVisitor.h"

/// Codes are written as their numbers, by which rules and table are held against each other.
enum kbeC_ErrorEnm : int {};

enum kbeC_ContentErrorEnm : int {
    kbeC_unavailableComponents = 0,
    kbeC_rateOptionsNotAllowed = 1,
};

/// The text of a code; empty beyond 59. Hosts raise some codes that no rule of this module
/// has.
atr_String kbeC_ErrorText(kbeC_ErrorEnm code);

[[noreturn]] void kbeC_Fail(kbeC_ErrorEnm code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void kbeC_Assert(bool condition, kbeC_ErrorEnm code) {
    if (!condition) kbeC_Fail(code);
}

/// The text with the name in it verbatim, around the translation and not through it. Empty beyond
/// the table.
atr_String kbeC_ContentErrorText(kbeC_ContentErrorEnm code, cow_String const& name);

[[noreturn]] void kbeC_FailContent(kbeC_ContentErrorEnm code, cow_String const& name);

inline void kbeC_AssertContent(bool condition, kbeC_ContentErrorEnm code, cow_String const& name) {
    if (!condition) kbeC_FailContent(code, name);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const kbeC_Module;
