#include "klcC_module.h"

#include "cls_MetadataRegistrar.h"
#include "klcC_ArchEntry.h"
#include "klcC_LoadCase.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard klcGuard;

}  // namespace

void klcC_initialize(int& count) {
    if (!klcGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(klcC_component, klcC_ArchEntry());

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(klcC_LoadCase::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(klcC_LoadCaseCont::InitializeMetadata,
                                cls_DomainLibrary | cls_DomainMemory);
}

void klcC_finalize(int& count) { klcGuard.Lower(count); }

void klcC_formalize() {}
