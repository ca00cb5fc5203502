#include "kflC_module.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "kflC_ArchEntry.h"
#include "kflC_ButterworthFilter.h"
#include "kflC_Chebyshev1Filter.h"
#include "kflC_Chebyshev2Filter.h"
#include "kflC_oldClasses.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kflGuard;

}  // namespace

void kflC_initialize(int& count) {
    if (!kflGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kflC_component, kflC_ArchEntry());

    {
        // The model keeps a copy of the prototype, which shares the empty repository.
        kflC_FilterContainer const repository;
        kflC_FCWrapper const wrapper(repository);
        ddr_Model::RegisterExtension(cow_String(ddr_Model::filterCmd()), wrapper);
    }

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(kflC_ButterworthFilter::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kflC_Chebyshev1Filter::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kflC_Chebyshev2Filter::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kflC_FCWrapper::InitializeMetadata, cls_DomainDatabase);
    registrar.initClassMetadata(kflC_Filter::InitializeMetadata, cls_DomainsAll);
    registrar.initClassMetadata(kflC_FilterContainer::InitializeMetadata,
                                cls_DomainLibrary | cls_DomainMemory);
    kflC_RegisterOldClasses();
}

void kflC_finalize(int& count) {
    if (!kflGuard.Lower(count)) return;
    ddr_Model::UnRegisterExtension(cow_String(ddr_Model::filterCmd()));
}

void kflC_formalize() {}
