#include "kbpC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const kbpSource = "generated/module/kbp/com/impl/kbpC_assert";

// clang-format off
constexpr char const* kbpTexts[] = {
    /*  0 */ "Area must be greater than zero.",
    /*  1 */ "The value of I11 must be greater than zero.",
    /*  2 */ "When the value of I22 is zero, the value of I12 must also be zero.",
    /*  3 */ "The value of I22  must be greater than or equal to zero.",
    /*  4 */ "Unable to copy unknown profile type.",
    /*  5 */ "The polar moment of inertia, J, must be non-negative.",
    /*  6 */ "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2",
    /*  7 */ "The height must be greater than zero.",
    /*  8 */ "The width must be greater than zero.",
    /*  9 */ "The radius must be greater than zero.",
    /* 10 */ "The thickness must be greater than zero.",
    /* 11 */ "All thicknesses must be greater or equal to zero.",
    /* 12 */ "Two connected segments cannot have zero thickness.",
    /* 13 */ "Thickness 1 + Thickness 3 must be less than the width.",
    /* 14 */ "Thickness 2 + Thickness 4 must be less than the height.",
    /* 15 */ "The thickness must be less than half the width.",
    /* 16 */ "The thickness must be less than half the height.",
    /* 17 */ "The thickness must be less than the radius.",
    /* 18 */ "The web thickness (t3) must be greater than zero.",
    /* 19 */ "At least one flange must have a width greater than zero.",
    /* 20 */ "Thickness one (t1) must be greater than zero.",
    /* 21 */ "Thickness two (t2) must be greater than zero.",
    /* 22 */ "The thickness must be less than sqrt(3)/2 times the radius.",
    /* 23 */ "The dimension a must be greater than zero.",
    /* 24 */ "The dimension b must be greater than zero.",
    /* 25 */ "The dimension c must be greater than zero.",
    /* 26 */ "The dimension h must be greater than zero.",
    /* 27 */ "The thickness t must be greater than zero.",
    /* 28 */ "The thickness t1 must be greater than zero.",
    /* 29 */ "The thickness t2 must be greater than zero.",
    /* 30 */ "The thickness tf must be greater than zero.",
    /* 31 */ "The thickness tw must be greater than zero.",
    /* 32 */ "The thickness t1 must be less than b.",
    /* 33 */ "The thickness t1 must be less than h.",
    /* 34 */ "The thickness t2 must be less than a.",
    /* 35 */ "The thickness t2 must be less than b.",
    /* 36 */ "The thickness tf must be less than h.",
    /* 37 */ "The thickness tw must be less than b.",
    /* 38 */ "Number of points is not equal to the number of segments + 1",
};
// clang-format on

}  // namespace

atr_String kbpC_ErrorText(kbpC_ErrorEnm code) { return nex_TextOfCode(kbpTexts, code); }

void kbpC_Fail(kbpC_ErrorEnm code) {
    nex_TextException(kbpC_ErrorText(code)).Throw(kbpSource, 116);
}

mdl_Module const kbpC_Module = {"kbp", [](int code) { return kbpC_ErrorText(kbpC_ErrorEnm(code)); },
                                [](int code) { kbpC_Fail(kbpC_ErrorEnm(code)); }};
