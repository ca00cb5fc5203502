#include "kbpC_module.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "kbpC_ArbitraryProfile.h"
#include "kbpC_ArchEntry.h"
#include "kbpC_BeamProfileDescriptionMap.h"
#include "kbpC_BeamProfileLabelMap.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"
#include "kbpC_oldClasses.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kbpGuard;

constexpr cls_MetadataRegistrar::Callback kbpClasses[] = {
    kbpC_BeamProfile::InitializeMetadata,        kbpC_ArbitraryProfile::InitializeMetadata,
    kbpC_BoxProfile::InitializeMetadata,         kbpC_CircularProfile::InitializeMetadata,
    kbpC_GeneralizedProfile::InitializeMetadata, kbpC_HexagonalProfile::InitializeMetadata,
    kbpC_IbeamProfile::InitializeMetadata,       kbpC_LbeamProfile::InitializeMetadata,
    kbpC_PipeProfile::InitializeMetadata,        kbpC_RectangularProfile::InitializeMetadata,
    kbpC_TbeamProfile::InitializeMetadata,       kbpC_TrapezoidalProfile::InitializeMetadata,
};

}  // namespace

void kbpC_initialize(int& count) {
    if (!kbpGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kbpC_component, kbpC_ArchEntry());

    {
        // The model keeps a copy of the prototype, which shares the empty repository.
        kbpC_BeamProfileContainer const repository;
        kbpC_BPCWrapper const wrapper(repository);
        ddr_Model::RegisterExtension(cow_String(ddr_Model::profileCmd()), wrapper);
    }

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataRegistrar::Callback const metadata : kbpClasses)
        registrar.initClassMetadata(metadata, cls_DomainsAll);
    registrar.initClassMetadata(kbpC_BeamProfileContainer::InitializeMetadata,
                                cls_DomainLibrary | cls_DomainMemory);
    registrar.initClassMetadata(kbpC_BPCWrapper::InitializeMetadata, cls_DomainDatabase);
    kbpC_RegisterOldClasses();
}

void kbpC_finalize(int& count) {
    if (!kbpGuard.Lower(count)) return;
    ddr_Model::UnRegisterExtension(cow_String(ddr_Model::profileCmd()));
    // Made when somebody first asked.
    kbpC_BeamProfileLabelMap::Finalize();
    kbpC_BeamProfileDescriptionMap::Finalize();
}
