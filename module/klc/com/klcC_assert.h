#pragma once

#include "atr_String.h"
#include "cow_String.h"
#include "mdl_RuleVisitor.h"

/// The module itself raises only the first; the others are for the host, which knows the steps.
enum klcC_ErrorEnm : int {
    klcC_zeroScaleFactor = 0,
    klcC_nameNotUnique = 1,
    klcC_specifiedTwice = 2,
    klcC_stepWithoutLoadCases = 3,
    klcC_boundaryConditionInModalStep = 4,
    klcC_frequencyStepNotSim = 5,
};

/// For the host, which knows the loads: the first three for scripts, the others for a dialog.
enum klcC_CompoundErrorEnm : int {
    klcC_loadMissing = 0,
    klcC_boundaryConditionMissing = 1,
    klcC_fieldMissing = 2,
    klcC_loadMissingDialog = 3,
    klcC_boundaryConditionMissingDialog = 4,
    klcC_fieldMissingDialog = 5,
};

/// The text of a code; empty beyond 5.
atr_String klcC_ErrorText(klcC_ErrorEnm code);

[[noreturn]] void klcC_Fail(klcC_ErrorEnm code);

/// Raises the text of `code` as a nex_TextException unless the condition holds; a call that passes
/// costs a test.
inline void klcC_Assert(bool condition, klcC_ErrorEnm code) {
    if (!condition) klcC_Fail(code);
}

/// The text with the name in it verbatim, around the translation and not through it. Empty beyond
/// the table.
atr_String klcC_CompoundErrorText(klcC_CompoundErrorEnm code, cow_String const& name);

[[noreturn]] void klcC_FailCompound(klcC_CompoundErrorEnm code, cow_String const& name);

inline void klcC_AssertLoadCaseContent(bool condition, klcC_CompoundErrorEnm code,
                                       cow_String const& name) {
    if (!condition) klcC_FailCompound(code, name);
}

/// What the rules of this module's classes raise through.
extern mdl_Module const klcC_Module;
