#include "kbeC_ConnectorPotentialShortcut.h"

#include "kbeC_StepSupport.h"

template class ddr_ShortcutImpl<kbeC_ConnectorPotential>;
template class ddr_Shortcut<kbeC_ConnectorPotential>;
template class ddr_ShortcutImpl<kbeC_ConnectorPotentialList>;
template class ddr_Shortcut<kbeC_ConnectorPotentialList>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 1>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 2>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 3>;
template class ddr_SequenceShortcut<kbeC_ConnectorPotentialList, kbeC_ConnectorPotential, 1>;

namespace {

char const* const kbePotentialSource =
    "generated/module/kbe/com/impl/kbeC_ConnectorPotentialShortcut";

constexpr char const* kbeNoInitiationPotentials =
    "InitiationPotentials exists only for ConnectorDamage object.";
constexpr char const* kbeNoEvolutionPotentials =
    "EvolutionPotentials exists only for ConnectorDamage object.";
// clang-format off
constexpr char const* kbeNoPotentials = "ConnectorPotentials exists only for ConnectorFriction or ConnectorPlasticity object.";
// clang-format on

// What the test is made on is the base's constant and not the object's class: it fails for every
// object. What follows it is what the step would do.
template <class Option>
auto& RequireDamage(Option& option, char const* text) {
    ddr_RequireOwner(kbeC_ConnectorBehaviorOption::TypeId(), {kbeC_ConnectorDamage::TypeId()}, text,
                     kbePotentialSource, __LINE__);
    return kbe::Cast<kbeC_ConnectorDamage>(option, kbePotentialSource, __LINE__);
}

template <class Option>
auto& PotentialsOf(Option& option) {
    unsigned const type = option.DynTypeId();
    ddr_RequireOwner(type, {kbeC_ConnectorFriction::TypeId(), kbeC_ConnectorPlasticity::TypeId()},
                     kbeNoPotentials, kbePotentialSource, __LINE__);
    if (type == kbeC_ConnectorFriction::TypeId())
        return kbe::Cast<kbeC_ConnectorFriction>(option, kbePotentialSource, __LINE__)
            .connectorPotentials;
    return kbe::Cast<kbeC_ConnectorPlasticity>(option, kbePotentialSource, __LINE__)
        .connectorPotentials;
}

}  // namespace

using InitiationPotentials =
    ddr_StepTraits<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorPotentialList const& InitiationPotentials::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireDamage(parent, kbeNoInitiationPotentials).initiationPotentials;
}
kbeC_ConnectorPotentialList& InitiationPotentials::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireDamage(parent, kbeNoInitiationPotentials).initiationPotentials;
}

using EvolutionPotentials =
    ddr_StepTraits<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorPotentialList const& EvolutionPotentials::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireDamage(parent, kbeNoEvolutionPotentials).evolutionPotentials;
}
kbeC_ConnectorPotentialList& EvolutionPotentials::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireDamage(parent, kbeNoEvolutionPotentials).evolutionPotentials;
}

using Potentials = ddr_StepTraits<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorPotentialList const& Potentials::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorPotentialList>();
    return PotentialsOf(parent);
}
kbeC_ConnectorPotentialList& Potentials::Get(kbeC_ConnectorBehaviorOption& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorPotentialList>();
    return PotentialsOf(parent);
}
