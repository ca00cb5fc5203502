#include "kmaC_module.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "kmaC_ArchEntry.h"
#include "kmaC_Material.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kmaGuard;

}  // namespace

void kmaC_initialize(int& count) {
    if (!kmaGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kmaC_component, kmaC_ArchEntry());

    {
        // The model keeps a copy of the prototype, which shares the empty repository.
        kmaC_MaterialContainer const repository;
        kmaC_MCWrapper const wrapper(repository);
        ddr_Model::RegisterExtension(cow_String(ddr_Model::materialCmd()), wrapper);
    }

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(kmaC_Density::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_Elastic::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_Expansion::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_FailStrain::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_FailStress::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_Material::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_MaterialOption::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_MaterialTable::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_SpecificHeat::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kmaC_MaterialContainer::InitializeMetadata,
                                cls_DomainLibrary | cls_DomainMemory);
    registrar.initClassMetadata(kmaC_MCWrapper::InitializeMetadata, cls_DomainDatabase);
}

void kmaC_finalize(int& count) {
    if (!kmaGuard.Lower(count)) return;
    ddr_Model::UnRegisterExtension(cow_String(ddr_Model::materialCmd()));
}
