#include "kbeC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const kbeSource = "generated/module/kbe/com/impl/kbeC_assert";

// clang-format off
constexpr char const* kbeTexts[] = {
    /*  0 */ "Number of dependencies specified is less than the minimum.",
    /*  1 */ "At least one displacement limit must be defined.",
    /*  2 */ "At least one motion criterion must be defined.",
    /*  3 */ "At least one component must be specified for this option.",
    /*  4 */ "Specified components must be between 1 and 6.",
    /*  5 */ "Frequency dependency can only be TRUE when behavior is LINEAR.",
    /*  6 */ "Stick stiffness must be greater than zero.",
    /*  7 */ "Frequency dependency can only be TRUE when coupling is set to UNCOUPLED.",
    /*  8 */ "Independent components cannot be specified when coupling is set to UNCOUPLED.",
    /*  9 */ "Independent component list must have between 1 and 6 members.",
    /* 10 */ "Independent component list must not contain duplicate values.",
    /* 11 */ "The number of dependencies does not match the table.",
    /* 12 */ "At least one independent component must be specified.",
    /* 13 */ "Independent components are not valid when behavior is LINEAR.",
    /* 14 */ "Minimum displacement/rotation must be less than the maximum displacement/rotation.",
    /* 15 */ "Minimum force must be less than the maximum force.",
    /* 16 */ "Specified affected component must be between 1 and 6 or set to ALL.",
    /* 17 */ "Specified independent components must be between 1 and 6.",
    /* 18 */ "At least one independent component must be specified.",
    /* 19 */ "Slip direction must have value between 1 and 6.",
    /* 20 */ "Incomplete friction coeffient table.",
    /* 21 */ "Static friction coefficient must be greater than kinetic friction coefficient.",
    /* 22 */ "Allowable elastic slip distance must be greater than zero.",
    /* 23 */ "Allowable exponential decay coefficient must be greater than or equal to zero.",
    /* 24 */ "Friction coefficient must be greater than or equal to zero.",
    /* 25 */ "Allowable pressure must be greater than or equal to zero.",
    /* 26 */ "Allowable slip rate must be greater than or equal to zero.",
    /* 27 */ "Number of state dependent variables must be greater than or equal to zero.",
    /* 28 */ "Shear stress limit must be greater than zero.",
    /* 29 */ "Allowable slip rate in test data must be greater than zero.",
    /* 30 */ "Elastic slip tolerance fraction must be greater than zero.",
    /* 31 */ "Missing friction coefficient.",
    /* 32 */ "Missing slip rate.",
    /* 33 */ "Missing friction coefficient or decay coefficient.",
    /* 34 */ "Contact force intrinsic component must have value between 1 and 6.",
    /* 35 */ "Derived component for contact force must be specified when contactForceStyle is set to DerivedComponent.",
    /* 36 */ "Specified component must be between 1 and 6.",
    /* 37 */ "Derived component name for potential must be specified.",
    /* 38 */ "Slip style must be specified.",
    /* 39 */ "Contact force component style must be specified.",
    /* 40 */ "Positive exponent value cannot be less than zero.",
    /* 41 */ "Potential exponent value must be greater than zero.",
    /* 42 */ "Contact force table must have a non-zero value.",
    /* 43 */ "Isotropic or kinematic hardening must be specified.",
    /* 44 */ "A non-zero value must be specified for the yield force/moment.",
    /* 45 */ "The number of table columns does not match the specified options.",
    /* 46 */ "No affected components have been specified.",
    /* 47 */ "Lower and upper limits cannot both be unspecified.",
    /* 48 */ "Damage variable values cannot be less than 0 or greater than 1.",
    /* 49 */ "Damage variable table data can only have zero values in the first row of data.",
    /* 50 */ "Exponential law parameter values must be greater than 0.",
    /* 51 */ "At least one intrinsic component must be specified.",
    /* 52 */ "Intrinsic component values must be between 1 and 6.",
    /* 53 */ "Independent component type must be specified.",
    /* 54 */ "At least one independent component must be specified.",
    /* 55 */ "Derived component specifies components that are not available CORM.",
    /* 56 */ "The regularize table option value must be set to ON when specifying defaultTolerance as OFF.",
    /* 57 */ "The defaultTolerance table option value must be set to OFF when specifying a regularization value.",
    /* 58 */ "The defaultRateFactor table option value must be set to OFF when specifying a rateFactor value.",
    /* 59 */ "The rateFactor value must be greater than 0 and cannot be greater than 1.",
};

constexpr char const* kbeContentTexts[] = {
    /*  0 */ "Unavailable connector components have been specified (CORM: %s).",
    /*  1 */ "Table rate options cannot be specified for this behavior (%s).",
};
// clang-format on

}  // namespace

atr_String kbeC_ErrorText(kbeC_ErrorEnm code) { return nex_TextOfCode(kbeTexts, code); }

void kbeC_Fail(kbeC_ErrorEnm code) {
    nex_TextException(kbeC_ErrorText(code)).Throw(kbeSource, 158);
}

atr_String kbeC_ContentErrorText(kbeC_ContentErrorEnm code, cow_String const& name) {
    atr_String text = nex_TextOfCode(kbeContentTexts, code);
    text.ReplaceNonTranslated(0, name);
    return text;
}

void kbeC_FailContent(kbeC_ContentErrorEnm code, cow_String const& name) {
    nex_TextException(kbeC_ContentErrorText(code, name)).Throw(kbeSource, 170);
}

mdl_Module const kbeC_Module = {
    "kbe", [](int code) { return kbeC_ErrorText(kbeC_ErrorEnm(code)); },
    [](int code) { kbeC_Fail(kbeC_ErrorEnm(code)); },
    [](int code, cow_String const& name) {
        return kbeC_ContentErrorText(kbeC_ContentErrorEnm(code), name);
    },
    [](int code, cow_String const& name) { kbeC_FailContent(kbeC_ContentErrorEnm(code), name); }};
