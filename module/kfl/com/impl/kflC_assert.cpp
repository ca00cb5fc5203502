#include "kflC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const kflSource = "generated/module/kfl/com/impl/kflC_assert";

// clang-format off
constexpr char const* kflTexts[] = {
    /*  0 */ "Cutoff frequency must be greater than 0.",
    /*  1 */ "Order must be a positive value less than or equal to 20.",
    /*  2 */ "Ripple factor must be greater than 0.",
    /*  3 */ "Ripple factor must be greater than 0 and less than or equal to 1.",
    /*  4 */ "Unknown filter type.",
    /*  5 */ "Unable to copy unknown filter",
    /*  6 */ "A system-defined filter is already named \"Antialiasing.\"",
};
// clang-format on

}  // namespace

atr_String kflC_ErrorText(int code) { return nex_TextOfCode(kflTexts, code); }

void kflC_Fail(int code) { nex_TextException(kflC_ErrorText(code)).Throw(kflSource, 48); }

mdl_Module const kflC_Module = {"kfl", kflC_ErrorText, kflC_Fail};
