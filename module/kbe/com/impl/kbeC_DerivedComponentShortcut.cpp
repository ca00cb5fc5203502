#include "kbeC_DerivedComponentShortcut.h"

#include "kbeC_StepSupport.h"

template class ddr_ShortcutImpl<kbeC_DerivedComponent>;
template class ddr_Shortcut<kbeC_DerivedComponent>;
template class ddr_ShortcutImpl<kbeC_CDCTerm>;
template class ddr_Shortcut<kbeC_CDCTerm>;
template class ddr_ShortcutImpl<kbeC_CDCTermList>;
template class ddr_Shortcut<kbeC_CDCTermList>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_DerivedComponent, 1>;
template class ddr_MemberShortcut<kbeC_ConnectorPotential, kbeC_DerivedComponent, 1>;
template class ddr_MemberShortcut<kbeC_DerivedComponent, kbeC_CDCTermList, 1>;
template class ddr_SequenceShortcut<kbeC_CDCTermList, kbeC_CDCTerm, 1>;

namespace {

char const* const kbeDerivedSource = "generated/module/kbe/com/impl/kbeC_DerivedComponentShortcut";

}  // namespace

using DerivedOfFriction = ddr_StepTraits<kbeC_DerivedComponentInConnectorBehaviorOptionShortcut>;
kbeC_DerivedComponent const& DerivedOfFriction::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_DerivedComponent>();
    return kbe::Cast<kbeC_ConnectorFriction>(parent, kbeDerivedSource, __LINE__)
        .derivedComponent.ConstGet();
}
kbeC_DerivedComponent& DerivedOfFriction::Get(kbeC_ConnectorBehaviorOption& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_DerivedComponent>();
    return kbe::Cast<kbeC_ConnectorFriction>(parent, kbeDerivedSource, __LINE__)
        .derivedComponent.Get();
}

using DerivedOfPotential = ddr_StepTraits<kbeC_DerivedComponentInConnectorPotentialShortcut>;
kbeC_DerivedComponent const& DerivedOfPotential::ConstGet(kbeC_ConnectorPotential const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_DerivedComponent>();
    return parent.derivedComponent.ConstGet();
}
kbeC_DerivedComponent& DerivedOfPotential::Get(kbeC_ConnectorPotential& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_DerivedComponent>();
    return parent.derivedComponent.Get();
}

using Terms = ddr_StepTraits<kbeC_CdcTermsListInDerivedComponentShortcut>;
kbeC_CDCTermList const& Terms::ConstGet(kbeC_DerivedComponent const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_CDCTermList>();
    return parent.cdcTerms;
}
kbeC_CDCTermList& Terms::Get(kbeC_DerivedComponent& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_CDCTermList>();
    return parent.cdcTerms;
}
