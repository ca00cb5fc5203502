#include "kamC_ArchEntry.h"
#include "omu_TypeIds.h"
#include "typ_Entry.h"

namespace {

constexpr unsigned kam(std::uint16_t row) { return typ_MakeTypeId(kamC_component, row); }

// clang-format off
constexpr typ_Entry kamRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
    /*   1 */ {typ_classKind, typ_root,              "kamC_BaselineCorrection"},
    /*   2 */ {typ_classKind, typ_root,              "kamC_Amplitude"},
    /*   3 */ {typ_classKind, kam(2),                "kamC_Decay"},
    /*   4 */ {typ_classKind, kam(2),                "kamC_EquallySpaced"},
    /*   5 */ {typ_classKind, kam(2),                "kamC_Modulated"},
    /*   6 */ {typ_classKind, kam(2),                "kamC_Periodic"},
    /*   7 */ {typ_classKind, kam(2),                "kamC_SolutionDependent"},
    /*   8 */ {typ_classKind, kam(2),                "kamC_Tabular"},
    /*   9 */ {typ_classKind, kam(2),                "kamC_PsdDefinition"},
    /*  10 */ {typ_classKind, kam(2),                "kamC_Spectrum"},
    /*  11 */ {typ_classKind, kam(2),                "kamC_SmoothStep"},
    /*  12 */ {typ_classKind, mdl_RepositoryTypeId,  "kamC_AmplitudeContainer"},
    /*  13 */ {typ_classKind, typ_root,              "kamC_AmplitudeShortcut"},
    /*  14 */ {typ_classKind, kam(15),               "kamC_AmplitudeInAmplitudeContainerShortcut"},
    /*  15 */ {typ_classKind, typ_root,              "kamC_AmplitudeIMPLSC"},
    /*  16 */ {typ_classKind, typ_root,              "kamC_AmplitudeContainerShortcut"},
    /*  17 */ {typ_classKind, typ_root,              "kamC_AmplitudeContainerIMPLSC"},
    /*  18 */ {typ_classKind, typ_root,              "kamC_BaselineCorrectionShortcut"},
    /*  19 */ {typ_classKind, kam(21),               "kamC_BaselineCorrectionInEquallySpacedShortcut"},
    /*  20 */ {typ_classKind, kam(21),               "kamC_BaselineCorrectionInTabularShortcut"},
    /*  21 */ {typ_classKind, typ_root,              "kamC_BaselineCorrectionIMPLSC"},
    /*  22 */ {typ_classKind, kam(17),               "kamC_AmplitudeContainerInModelShortcut"},
    /*  23 */ {typ_classKind, mdl_ExtensionTypeId,   "kamC_ACWrapper"},
    /*  24 */ {typ_classKind, kam(21),               "kamC_BaselineCorrectionInAmplitudeShortcut"},
    /*  25 */ {typ_classKind, kam(2),                "kamC_ActuatorAmplitude"},
    /*  26 */ {typ_classKind, kam(2),                "kamC_UserAmplitude"},
};
// clang-format on

}  // namespace

typ_ArchCompEntry kamC_ArchEntry() {
    return typ_ArchCompEntry(kamRows, sizeof kamRows / sizeof kamRows[0]);
}
