#include "kbeC_module.h"

#include "cls_MetadataRegistrar.h"
#include "kbeC_ArchEntry.h"
#include "kbeC_BehaviorOptionContainer.h"
#include "kbeC_ConnectorDamage.h"
#include "kbeC_ConnectorDamping.h"
#include "kbeC_ConnectorElasticity.h"
#include "kbeC_ConnectorFailure.h"
#include "kbeC_ConnectorFriction.h"
#include "kbeC_ConnectorLock.h"
#include "kbeC_ConnectorPlasticity.h"
#include "kbeC_ConnectorStop.h"
#include "kbeC_ContactForce.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kbeGuard;

// All in every domain, the repository too.
constexpr cls_MetadataRegistrar::Callback kbeClasses[] = {
    kbeC_ConnectorPotential::InitializeMetadata,
    kbeC_ContactForce::InitializeMetadata,
    kbeC_ConnectorBehaviorOption::InitializeMetadata,
    kbeC_ConnectorDamage::InitializeMetadata,
    kbeC_ConnectorDamping::InitializeMetadata,
    kbeC_ConnectorElasticity::InitializeMetadata,
    kbeC_ConnectorFailure::InitializeMetadata,
    kbeC_ConnectorFriction::InitializeMetadata,
    kbeC_ConnectorLock::InitializeMetadata,
    kbeC_ConnectorPlasticity::InitializeMetadata,
    kbeC_ConnectorStop::InitializeMetadata,
    kbeC_TangentialBehavior::InitializeMetadata,
    kbeC_BehaviorOptionContainer::InitializeMetadata,
    kbeC_DerivedComponent::InitializeMetadata,
    kbeC_CDCTerm::InitializeMetadata,
    kbeC_ConnectorOptions::InitializeMetadata,
};

}  // namespace

void kbeC_initialize(int& count) {
    if (!kbeGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kbeC_component, kbeC_ArchEntry());

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (cls_MetadataRegistrar::Callback each : kbeClasses)
        registrar.initClassMetadata(each, cls_DomainsAll);
}

void kbeC_finalize(int& count) { kbeGuard.Lower(count); }

void kbeC_formalize() {}
