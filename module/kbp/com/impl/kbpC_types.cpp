#include "kbpC_ArchEntry.h"
#include "omu_TypeIds.h"
#include "typ_Entry.h"

namespace {

constexpr unsigned kbp(std::uint16_t row) { return typ_MakeTypeId(kbpC_component, row); }

// Row 18 lacks an L in its name. It is what databases hold.
// clang-format off
constexpr typ_Entry kbpRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
    /*   1 */ {typ_classKind, typ_root,              "kbpC_BeamProfile"},
    /*   2 */ {typ_classKind, kbp(1),                "kbpC_GeneralizedProfile"},
    /*   3 */ {typ_classKind, kbp(1),                "kbpC_CircularProfile"},
    /*   4 */ {typ_classKind, kbp(1),                "kbpC_HexagonalProfile"},
    /*   5 */ {typ_classKind, kbp(1),                "kbpC_PipeProfile"},
    /*   6 */ {typ_classKind, kbp(1),                "kbpC_IbeamProfile"},
    /*   7 */ {typ_classKind, kbp(1),                "kbpC_BoxProfile"},
    /*   8 */ {typ_classKind, mdl_RepositoryTypeId,  "kbpC_BeamProfileContainer"},
    /*   9 */ {typ_classKind, kbp(1),                "kbpC_ArbitraryProfile"},
    /*  10 */ {typ_classKind, kbp(1),                "kbpC_RectangularProfile"},
    /*  11 */ {typ_classKind, kbp(1),                "kbpC_LbeamProfile"},
    /*  12 */ {typ_classKind, kbp(1),                "kbpC_TbeamProfile"},
    /*  13 */ {typ_classKind, kbp(1),                "kbpC_TrapezoidalProfile"},
    /*  14 */ {typ_classKind, typ_root,              "kbpC_BeamProfileContainerShortcut"},
    /*  15 */ {typ_classKind, typ_root,              "kbpC_BeamProfileContainerIMPLSC"},
    /*  16 */ {typ_classKind, typ_root,              "kbpC_BeamProfileShortcut"},
    /*  17 */ {typ_classKind, kbp(18),               "kbpC_BeamProfileInBeamProfileContainerShortcut"},
    /*  18 */ {typ_classKind, typ_root,              "kbpC_BeamProfileIMPSC"},
    /*  19 */ {typ_classKind, kbp(15),               "kbpC_BeamProfileContainerInModelShortcut"},
    /*  20 */ {typ_classKind, mdl_ExtensionTypeId,   "kbpC_BPCWrapper"},
};
// clang-format on

}  // namespace

typ_ArchCompEntry kbpC_ArchEntry() {
    return typ_ArchCompEntry(kbpRows, sizeof kbpRows / sizeof kbpRows[0]);
}
