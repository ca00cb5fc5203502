#include "klcC_ArchEntry.h"
#include "omu_TypeIds.h"
#include "typ_Entry.h"

namespace {

constexpr unsigned klc(std::uint16_t row) { return typ_MakeTypeId(klcC_component, row); }

// clang-format off
constexpr typ_Entry klcRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
    /*   1 */ {typ_classKind, typ_root,              "klcC_LoadCase"},
    /*   2 */ {typ_classKind, mdl_RepositoryTypeId,  "klcC_LoadCaseCont"},
    /*   3 */ {typ_classKind, typ_root,              "klcC_LoadCaseIMPLSC"},
    /*   4 */ {typ_classKind, typ_root,              "klcC_LoadCaseShortcut"},
    /*   5 */ {typ_classKind, klc(3),                "klcC_LoadCaseInLoadCaseContShortcut"},
    /*   6 */ {typ_classKind, typ_root,              "klcC_LoadCaseContIMPLSC"},
    /*   7 */ {typ_classKind, typ_root,              "klcC_LoadCaseContShortcut"},
};
// clang-format on

}  // namespace

typ_ArchCompEntry klcC_ArchEntry() {
    return typ_ArchCompEntry(klcRows, sizeof klcRows / sizeof klcRows[0]);
}
