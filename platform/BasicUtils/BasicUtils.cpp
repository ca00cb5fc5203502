#include "BasicUtils.h"

#include "cls_Codes.h"
#include "cls_MetadataRegistrar.h"
#include "nex_TypeIds.h"
#include "omi_Singleton.h"
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

// The collections are classes of the frame: their records have no fields of their own under the
// schema, but a stored database names them like any other class.
void DescribeCollections(cls_ClassRegistrar& registrar) {
    registrar.CreateClassMD("cls_List", cls_ListTypeId, 203, nullptr, cls_RootTypeId);
    registrar.CreateClassMD("cls_Map", cls_MapTypeId, 203, nullptr, cls_RootTypeId);
}

}  // namespace

void UTI_BasicUtils_initialize(int& count) {
    if (!utiGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(utiComponent,
                                   typ_ArchCompEntry(utiRows, sizeof utiRows / sizeof utiRows[0]));
    omi_Singleton<cls_MetadataRegistrar>::Instance().initClassMetadata(DescribeCollections,
                                                                       cls_DomainsAll);
}

void UTI_BasicUtils_finalize(int& count) { utiGuard.Lower(count); }
