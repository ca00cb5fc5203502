#include "klcC_assert.h"

#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

char const* const klcSource = "generated/module/klc/com/impl/klcC_assert";

// clang-format off
constexpr char const* klcTexts[] = {
    /*  0 */ "A scale factor cannot be zero or blank.",
    /*  1 */ "Load case name must be unique to the model.",
    /*  2 */ "A load or boundary condition has been specified more than once in same load case.",
    /*  3 */ "Load cases are only available for Static Linear Perturbation and Steady-State Dynamics Direct steps.",
    /*  4 */ "Boundary conditions cannot be used in a Steady state dynamics, Modal or Steady state dynamics, Subspace load case.",
    /*  5 */ "A SIM-based frequency analysis is required when using a load case in a Steady state dynamics, Modal or Steady state dynamics, Subspace step.",
};

constexpr char const* klcContentTexts[] = {
    /*  0 */ "The load \"%s\" is suppressed or does not exist.",
    /*  1 */ "The boundary condition \"%s\" is suppressed or does not exist.",
    /*  2 */ "The field \"%s\" is suppressed or does not exist.",
    /*  3 */ "The load \"%s\" is suppressed or does not exist.\n\nAvailable loads may be viewed by clicking the Add... button.",
    /*  4 */ "The boundary condition \"%s\" is suppressed or does not exist.\n\nAvailable boundary conditions may be viewed by clicking the Add... button.",
    /*  5 */ "The field \"%s\" is suppressed or does not exist.\n\nAvailable fields may be viewed by clicking the Add... button.",
};
// clang-format on

}  // namespace

atr_String klcC_ErrorText(klcC_ErrorEnm code) { return nex_TextOfCode(klcTexts, code); }

void klcC_Fail(klcC_ErrorEnm code) { nex_TextException(klcC_ErrorText(code)).Throw(klcSource, 52); }

atr_String klcC_CompoundErrorText(klcC_CompoundErrorEnm code, cow_String const& name) {
    atr_String text = nex_TextOfCode(klcContentTexts, code);
    text.ReplaceNonTranslated(0, name);
    return text;
}

void klcC_FailCompound(klcC_CompoundErrorEnm code, cow_String const& name) {
    nex_TextException(klcC_CompoundErrorText(code, name)).Throw(klcSource, 64);
}

mdl_Module const klcC_Module = {"klc", [](int code) { return klcC_ErrorText(klcC_ErrorEnm(code)); },
                                [](int code) { klcC_Fail(klcC_ErrorEnm(code)); }};
