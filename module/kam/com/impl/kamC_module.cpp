#include "kamC_module.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "kamC_ActuatorAmplitude.h"
#include "kamC_ArchEntry.h"
#include "kamC_Decay.h"
#include "kamC_EquallySpaced.h"
#include "kamC_Modulated.h"
#include "kamC_Periodic.h"
#include "kamC_PsdDefinition.h"
#include "kamC_SmoothStep.h"
#include "kamC_SolutionDependent.h"
#include "kamC_Spectrum.h"
#include "kamC_Tabular.h"
#include "kamC_UserAmplitude.h"
#include "kamC_oldClasses.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kamGuard;

constexpr cls_MetadataRegistrar::Callback kamClasses[] = {
    kamC_Amplitude::InitializeMetadata,
    kamC_BaselineCorrection::InitializeMetadata,
    kamC_Decay::InitializeMetadata,
    kamC_EquallySpaced::InitializeMetadata,
    kamC_Modulated::InitializeMetadata,
    kamC_Periodic::InitializeMetadata,
    kamC_PsdDefinition::InitializeMetadata,
    kamC_SmoothStep::InitializeMetadata,
    kamC_SolutionDependent::InitializeMetadata,
    kamC_Spectrum::InitializeMetadata,
    kamC_Tabular::InitializeMetadata,
    kamC_ActuatorAmplitude::InitializeMetadata,
    kamC_UserAmplitude::InitializeMetadata,
    kamC_AmplitudeContainer::InitializeMetadata,
};

}  // namespace

void kamC_initialize(int& count) {
    if (!kamGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kamC_component, kamC_ArchEntry());

    {
        // The model keeps a copy of the prototype, which shares the empty repository.
        kamC_AmplitudeContainer const repository;
        kamC_ACWrapper const wrapper(repository);
        ddr_Model::RegisterExtension(cow_String(ddr_Model::amplitudeCmd()), wrapper);
    }

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataRegistrar::Callback const metadata : kamClasses)
        registrar.initClassMetadata(metadata, cls_DomainsAll);
    registrar.initClassMetadata(kamC_ACWrapper::InitializeMetadata, cls_DomainDatabase);
    kamC_RegisterOldClasses();
}

void kamC_finalize(int& count) {
    if (!kamGuard.Lower(count)) return;
    ddr_Model::UnRegisterExtension(cow_String(ddr_Model::amplitudeCmd()));
}
