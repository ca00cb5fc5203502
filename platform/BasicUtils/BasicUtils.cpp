#include "BasicUtils.h"

#include "nex_TypeIds.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

constexpr std::uint16_t utiComponent = 35;

uti_Guard utiGuard;

// clang-format off
constexpr typ_Entry utiRows[] = {
    /* 0 */ {typ_placeholderKind, typ_root, nullptr},
    /* 1 */ {typ_classKind, typ_root,            "cls_List"},
    /* 2 */ {typ_classKind, typ_root,            "cls_Map"},
    /* 3 */ {typ_classKind, typ_root,            "nex_Exception"},
    /* 4 */ {typ_classKind, nex_ExceptionTypeId, "nex_TextException"},
    /* 5 */ {typ_classKind, nex_ExceptionTypeId, "nex_CommandException"},
};
// clang-format on

}  // namespace

void UTI_BasicUtils_initialize(int& count) {
    if (!utiGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(utiComponent,
                                   typ_ArchCompEntry(utiRows, sizeof utiRows / sizeof utiRows[0]));
}

void UTI_BasicUtils_finalize(int& count) { utiGuard.Lower(count); }
