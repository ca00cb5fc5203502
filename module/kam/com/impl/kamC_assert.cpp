#include "kamC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const kamSource = "generated/module/kam/com/impl/kamC_assert";

// clang-format off
constexpr char const* kamTexts[] = {
    /*  0 */ "Invalid time values, expected monotonically increasing numbers.",
    /*  1 */ "Invalid decay time, expected a positive number.",
    /*  2 */ "Invalid smoothing parameter, expected a value between 0.0 and 0.5.",
    /*  3 */ "Invalid starting time, expected a positive number.",
    /*  4 */ "Invalid frequency, expected a positive number.",
    /*  5 */ "Invalid circular frequency, expected a positive number.",
    /*  6 */ "Invalid circular frequency 1, expected a positive number.",
    /*  7 */ "Invalid circular frequency 2, expected a positive number.",
    /*  8 */ "Invalid starting time, expected a non-negative number.",
    /*  9 */ "Invalid fixed interval, expected a positive number.",
    /* 10 */ "Unknown definition.",
    /* 11 */ "Number of columns must be less or equal to 2.",
    /* 12 */ "The Time-Amplitude table should have at least two rows of data.",
    /* 13 */ "Invalid reference gravity acceleration, expected a non-negative value.",
    /* 14 */ "Invalid reference power value, expected non-negative number.",
    /* 15 */ "Tabular data must have three columns.",
    /* 16 */ "The amplitude container is empty.",
    /* 17 */ "Unable to copy unknown amplitude.",
    /* 18 */ "Invalid amplitude.",
    /* 19 */ "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.",
    /* 20 */ "Invalid logical relation of initial, minimum and maximum amplitudes.",
    /* 21 */ "Initial amplitude must be less or equal than maximum amplitude.",
    /* 22 */ "At least one set of fourier coefficients must be specified for periodic amplitude.",
};
// clang-format on

}  // namespace

atr_String kamC_ErrorText(int code) { return nex_TextOfCode(kamTexts, code); }

void kamC_Fail(int code) { nex_TextException(kamC_ErrorText(code)).Throw(kamSource, 84); }

mdl_Module const kamC_Module = {"kam", kamC_ErrorText, kamC_Fail};
