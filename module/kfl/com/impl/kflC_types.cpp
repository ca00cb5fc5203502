#include "kflC_ArchEntry.h"
#include "omu_TypeIds.h"
#include "typ_Entry.h"

namespace {

constexpr unsigned kfl(std::uint16_t row) { return typ_MakeTypeId(kflC_component, row); }

// clang-format off
constexpr typ_Entry kflRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
    /*   1 */ {typ_classKind, mdl_ExtensionTypeId,   "kflC_FCWrapper"},
    /*   2 */ {typ_classKind, typ_root,              "kflC_Filter"},
    /*   3 */ {typ_classKind, kfl(2),                "kflC_ButterworthFilter"},
    /*   4 */ {typ_classKind, kfl(2),                "kflC_Chebyshev1Filter"},
    /*   5 */ {typ_classKind, kfl(2),                "kflC_Chebyshev2Filter"},
    /*   6 */ {typ_classKind, mdl_RepositoryTypeId,  "kflC_FilterContainer"},
    /*   7 */ {typ_classKind, typ_root,              "kflC_FilterShortcut"},
    /*   8 */ {typ_classKind, kfl(9),                "kflC_FilterInFilterContainerShortcut"},
    /*   9 */ {typ_classKind, typ_root,              "kflC_FilterIMPLSC"},
    /*  10 */ {typ_classKind, typ_root,              "kflC_FilterContainerShortcut"},
    /*  11 */ {typ_classKind, typ_root,              "kflC_FilterContainerIMPLSC"},
    /*  12 */ {typ_classKind, kfl(11),               "kflC_FilterContainerInModelShortcut"},
};
// clang-format on

}  // namespace

typ_ArchCompEntry kflC_ArchEntry() {
    return typ_ArchCompEntry(kflRows, sizeof kflRows / sizeof kflRows[0]);
}
