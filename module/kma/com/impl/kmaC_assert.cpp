#include "kmaC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const kmaSource = "generated/module/kma/com/impl/kmaC_assert";

// clang-format off
constexpr char const* kmaTexts[] = {
    /*  0 */ "Number of dependencies specified is less than the minimum.",
    /*  1 */ "Delete number is less than the minimum.",
    /*  2 */ "The poisson's ratio given is less than the minimum.",
    /*  3 */ "The poisson's ratio given is greater than the maximum.",
    /*  4 */ "Value for nmax is less than the minimum.",
    /*  5 */ "Value for nmax is more than the maximum.",
    /*  6 */ "Eccentricity given is less than the minimum.",
    /*  7 */ "Hardening rate given is less than the minimum.",
    /*  8 */ "The number of constants must be larger than zero.",
    /*  9 */ "Material option has no such sub-option.",
    /* 10 */ "Material option does not have an active sub-option of this type.",
    /* 11 */ "Offset plastic strain at start of failure must be greater than or equal to zero.",
    /* 12 */ "Equivalent plastic strain at failure must be greater than zero.",
    /* 13 */ "Invalid state variable number.",
    /* 14 */ "Void volume fraction at total failure must be greater than zero.",
    /* 15 */ "Critical void volume fraction must be greater than or equal to zero.",
    /* 16 */ "Composite value less than minimum.",
    /* 17 */ "Value for n is less than the minimum.",
    /* 18 */ "Value for n is greater than the maximum.",
    /* 19 */ "The order n of the polynomial strain energy potential\ncan only take the values 1 or 2\nif the TEST DATA suboption is used.",
    /* 20 */ "Fraction is greater than the maximum.",
    /* 21 */ "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).",
    /* 22 */ "Beta must be between zero and one inclusive.",
    /* 23 */ "Number of properties must be greater than or equal to zero.",
    /* 24 */ "Invalid hyperelastic strain energy potential type.",
    /* 25 */ "Closure value must be greater than zero.",
    /* 26 */ "Relative slope drop must be greater than zero.",
    /* 27 */ "Tensile tiffness factor must be greater than zero.",
    /* 28 */ "Number of unloading dependencies specified is less than the minimum.",
    /* 29 */ "At least three rows of loading data are required.",
    /* 30 */ "At least two rows of loading data are required.",
    /* 31 */ "Loading data should start at 0.",
    /* 32 */ "Gasket contact area may only be defined when gasket thickness behavior has units of force.",
    /* 33 */ "invalid flow potential eccentricity in the deviatoric plane.",
    /* 34 */ "No compression and No tension are mutually exclusive. Please unselect one of them.",
    /* 35 */ "Volumetric preload cannot be used with traction.",
    /* 36 */ "Please specify a different set of values for Type, Softening and Mixed Mode Behavior.",
    /* 37 */ "The plastic strain at first yield must be zero.",
    /* 38 */ " The static yield stress must be defined.",
    /* 39 */ "The value of beta should be greater than or equal to zero.",
    /* 40 */ "The value of m should be greater than or equal to zero.",
    /* 41 */ "The value of r should be greater than 1.",
    /* 42 */ "The values of both beta and m cannot be zero at the same time.",
    /* 43 */ "There should be atleast one test data for TEST DATA INPUT definition",
    /* 44 */ "Mullins data specified using constants requires all three values.",
    /* 45 */ "The number of Properties specified does not match the data size.",
    /* 46 */ "Hyperelastic material option with N=4 requires temperature dependance.",
};
// clang-format on

}  // namespace

atr_String kmaC_ErrorText(kmaC_ErrorEnm code) { return nex_TextOfCode(kmaTexts, code); }

void kmaC_Fail(kmaC_ErrorEnm code) {
    nex_TextException(kmaC_ErrorText(code)).Throw(kmaSource, 140);
}

mdl_Module const kmaC_Module = {"kma", [](int code) { return kmaC_ErrorText(kmaC_ErrorEnm(code)); },
                                [](int code) { kmaC_Fail(kmaC_ErrorEnm(code)); }};
