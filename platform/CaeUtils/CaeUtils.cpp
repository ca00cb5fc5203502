#include "CaeUtils.h"

#include "cls_MetadataRegistrar.h"
#include "mdl_PropertyTable.h"
#include "mdl_Repository.h"
#include "nex_TypeIds.h"
#include "omi_Singleton.h"
#include "omu_TypeIds.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

constexpr std::uint16_t mdlComponent = 10;

uti_Guard mdlGuard;

// The numbers of rows 1 and 13 stand in the tables of the components above; those between are free.
// clang-format off
constexpr typ_Entry mdlRows[] = {
    /*  0 */ {typ_placeholderKind, typ_root, nullptr},
    /*  1 */ {typ_classKind, mdl_ExtensionTypeId, "mdl_Repository"},
    /*  2 */ {typ_placeholderKind, typ_root, nullptr},
    /*  3 */ {typ_placeholderKind, typ_root, nullptr},
    /*  4 */ {typ_placeholderKind, typ_root, nullptr},
    /*  5 */ {typ_placeholderKind, typ_root, nullptr},
    /*  6 */ {typ_placeholderKind, typ_root, nullptr},
    /*  7 */ {typ_placeholderKind, typ_root, nullptr},
    /*  8 */ {typ_placeholderKind, typ_root, nullptr},
    /*  9 */ {typ_placeholderKind, typ_root, nullptr},
    /* 10 */ {typ_placeholderKind, typ_root, nullptr},
    /* 11 */ {typ_placeholderKind, typ_root, nullptr},
    /* 12 */ {typ_placeholderKind, typ_root, nullptr},
    /* 13 */ {typ_classKind, typ_root,                   "mdl_Extension"},
    /* 14 */ {typ_classKind, typ_root,                   "mdl_PropertyTable"},
    /* 15 */ {typ_classKind, nex_CommandExceptionTypeId, "omu_ValueErrorException"},
    /* 16 */ {typ_classKind, nex_CommandExceptionTypeId, "omu_AccessErrorException"},
    /* 17 */ {typ_classKind, typ_root,                   "omu_Primitive"},
    /* 18 */ {typ_classKind, omu_PrimitiveTypeId,        "omu_PrimSequence"},
    /* 19 */ {typ_classKind, omu_PrimitiveTypeId,        "omu_PrimEnumBase"},
    /* 20 */ {typ_classKind, omu_PrimitiveTypeId,        "omu_PrimString"},
    /* 21 */ {typ_classKind, omu_PrimitiveTypeId,        "omu_PrimInt"},
    /* 22 */ {typ_classKind, omu_PrimitiveTypeId,        "omu_PrimDouble"},
    /* 23 */ {typ_classKind, omu_PrimSequenceTypeId,     "omu_PrimTuple"},
};
// clang-format on

}  // namespace

void UTI_CaeUtils_initialize(int& count) {
    if (!mdlGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(mdlComponent,
                                   typ_ArchCompEntry(mdlRows, sizeof mdlRows / sizeof mdlRows[0]));
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(mdl_Extension::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(mdl_Repository::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(mdl_PropertyTable::InitializeMetadata, cls_DomainsAll);
}

void UTI_CaeUtils_finalize(int& count) { mdlGuard.Lower(count); }
