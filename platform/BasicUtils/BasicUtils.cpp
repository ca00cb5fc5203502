#include "BasicUtils.h"

#include "cls_TypeIds.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard utiGuard;

// clang-format off
constexpr typ_Entry utiRows[] = {
    /* 0 */ {typ_placeholderKind, typ_root, nullptr},
    /* 1 */ {typ_classKind, typ_root,          "cls_List"},
    /* 2 */ {typ_classKind, typ_root,          "cls_Map"},
    /* 3 */ {typ_classKind, typ_root,          "nex_Exception"},
    /* 4 */ {typ_classKind, nex_ExceptionType, "nex_TextException"},
    /* 5 */ {typ_classKind, nex_ExceptionType, "nex_CommandException"},
};
// clang-format on

}  // namespace

void UTI_BasicUtils_initialize(int& count) {
    if (!utiGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(cls_component,
                                   typ_ArchCompEntry(utiRows, sizeof utiRows / sizeof utiRows[0]));
}

void UTI_BasicUtils_finalize(int& count) { utiGuard.Lower(count); }
