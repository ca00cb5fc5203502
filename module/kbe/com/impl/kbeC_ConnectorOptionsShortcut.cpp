#include "kbeC_ConnectorOptionsShortcut.h"

#include "kbeC_ConnectorDamping.h"
#include "kbeC_ConnectorElasticity.h"
#include "kbeC_StepSupport.h"

template class ddr_ShortcutImpl<kbeC_ConnectorOptions>;
template class ddr_Shortcut<kbeC_ConnectorOptions>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 1>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 2>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 3>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 4>;
template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 5>;
template class ddr_MemberShortcut<kbeC_CDCTerm, kbeC_ConnectorOptions, 1>;

namespace {

char const* const kbeOptionsSource = "generated/module/kbe/com/impl/kbeC_ConnectorOptionsShortcut";

// clang-format off
constexpr char const* kbeNoOptions = "ConnectorOptions exists only for ConnectorDamping, ConnectorElasticity, or ConnectorFriction objects.";
constexpr char const* kbeNoInitiation = "initiationOptions exists only for the ConnectorDamage object.";
constexpr char const* kbeNoEvolution = "evolutionOptions exists only for the ConnectorDamage object.";
constexpr char const* kbeNoIsotropic = "isotropicOptions exists only for the ConnectorPlasticity object.";
constexpr char const* kbeNoKinematic = "kinematicOptions exists only for the ConnectorPlasticity object.";
// clang-format on

/// The options of a behaviour that has one table, const where the behaviour is.
template <class Option>
auto& OptionsOf(Option& option) {
    unsigned const type = option.DynTypeId();
    ddr_RequireOwner(type,
                     {kbeC_ConnectorDamping::TypeId(), kbeC_ConnectorElasticity::TypeId(),
                      kbeC_ConnectorFriction::TypeId()},
                     kbeNoOptions, kbeOptionsSource, __LINE__);
    if (type == kbeC_ConnectorDamping::TypeId())
        return kbe::Cast<kbeC_ConnectorDamping>(option, kbeOptionsSource, __LINE__).options;
    if (type == kbeC_ConnectorElasticity::TypeId())
        return kbe::Cast<kbeC_ConnectorElasticity>(option, kbeOptionsSource, __LINE__).options;
    return kbe::Cast<kbeC_ConnectorFriction>(option, kbeOptionsSource, __LINE__).options;
}

// What the test is made on is the base's constant and not the object's class: it fails for every
// object. What follows it is what the step would do.
template <class Owner, class Option>
auto& RequireOwner(Option& option, char const* text) {
    ddr_RequireOwner(kbeC_ConnectorBehaviorOption::TypeId(), {Owner::TypeId()}, text,
                     kbeOptionsSource, __LINE__);
    return kbe::Cast<Owner>(option, kbeOptionsSource, __LINE__);
}

}  // namespace

using OptionsOfBehavior = ddr_StepTraits<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorOptions const& OptionsOfBehavior::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorOptions>();
    return OptionsOf(parent).ConstGet();
}
kbeC_ConnectorOptions& OptionsOfBehavior::Get(kbeC_ConnectorBehaviorOption& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorOptions>();
    return OptionsOf(parent).Get();
}

using InitiationOptions = ddr_StepTraits<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorOptions const& InitiationOptions::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireOwner<kbeC_ConnectorDamage>(parent, kbeNoInitiation).initiationOptions.ConstGet();
}
kbeC_ConnectorOptions& InitiationOptions::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireOwner<kbeC_ConnectorDamage>(parent, kbeNoInitiation).initiationOptions.Get();
}

using EvolutionOptions = ddr_StepTraits<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorOptions const& EvolutionOptions::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireOwner<kbeC_ConnectorDamage>(parent, kbeNoEvolution).evolutionOptions.ConstGet();
}
kbeC_ConnectorOptions& EvolutionOptions::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireOwner<kbeC_ConnectorDamage>(parent, kbeNoEvolution).evolutionOptions.Get();
}

using IsotropicOptions = ddr_StepTraits<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorOptions const& IsotropicOptions::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireOwner<kbeC_ConnectorPlasticity>(parent, kbeNoIsotropic)
        .isotropicOptions.ConstGet();
}
kbeC_ConnectorOptions& IsotropicOptions::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireOwner<kbeC_ConnectorPlasticity>(parent, kbeNoIsotropic).isotropicOptions.Get();
}

using KinematicOptions = ddr_StepTraits<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut>;
kbeC_ConnectorOptions const& KinematicOptions::ConstGet(
    kbeC_ConnectorBehaviorOption const& parent) {
    return RequireOwner<kbeC_ConnectorPlasticity>(parent, kbeNoKinematic)
        .kinematicOptions.ConstGet();
}
kbeC_ConnectorOptions& KinematicOptions::Get(kbeC_ConnectorBehaviorOption& parent) {
    return RequireOwner<kbeC_ConnectorPlasticity>(parent, kbeNoKinematic).kinematicOptions.Get();
}

using OptionsOfTerm = ddr_StepTraits<kbeC_ConnectorOptionsInCDCTermShortcut>;
kbeC_ConnectorOptions const& OptionsOfTerm::ConstGet(kbeC_CDCTerm const& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorOptions>();
    return parent.options.ConstGet();
}
kbeC_ConnectorOptions& OptionsOfTerm::Get(kbeC_CDCTerm& parent) {
    if (kbe::IsAbsent(parent)) return kbe::Absent<kbeC_ConnectorOptions>();
    return parent.options.Get();
}
