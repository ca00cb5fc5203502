#pragma once

#include "kbeC_ConnectorBehaviorOptionShortcut.h"
#include "kbeC_ConnectorDamage.h"
#include "kbeC_ConnectorFriction.h"
#include "kbeC_ConnectorPlasticity.h"
#include "kbeC_DerivedComponentShortcut.h"

// The shortcuts to the table options of behaviours and of the terms of derived components. Options
// that are absent give a reference to null, as do those of an absent term; ddr_Shortcut has the
// same as pointers.
//
// Only the step to "options" asks the behaviour for its class. The other four compare the class of
// the family's base, so that Get and ConstGet raise whatever the behaviour is; names, paths, copies
// and persistence work as in any step. Scripts and databases depend on it.

using kbeC_ConnectorOptionsIMPLSC = ddr_ShortcutImpl<kbeC_ConnectorOptions>;
using kbeC_ConnectorOptionsShortcut = ddr_Shortcut<kbeC_ConnectorOptions>;
using kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 1>;
using kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 2>;
using kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 3>;
using kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 4>;
using kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 5>;
using kbeC_ConnectorOptionsInCDCTermShortcut =
    ddr_MemberShortcut<kbeC_CDCTerm, kbeC_ConnectorOptions, 1>;

template <>
struct ddr_ShortcutTraits<kbeC_ConnectorOptions> {
    static constexpr unsigned typeId = 0x2A8003F;
    static constexpr unsigned implTypeId = 0x2A80040;
};
template <>
struct ddr_StepTraits<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80041;
    static constexpr omn_FixedString Name() { return kbeC_ConnectorFriction::optionsCmd(); }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80042;
    static constexpr omn_FixedString Name() { return kbeC_ConnectorDamage::initiationOptionsCmd(); }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80043;
    static constexpr omn_FixedString Name() { return kbeC_ConnectorDamage::evolutionOptionsCmd(); }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80044;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorPlasticity::isotropicOptionsCmd();
    }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80045;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorPlasticity::kinematicOptionsCmd();
    }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_ConnectorOptionsInCDCTermShortcut> {
    static constexpr unsigned typeId = 0x2A80046;
    static constexpr omn_FixedString Name() { return kbeC_CDCTerm::optionsCmd(); }
    static kbeC_ConnectorOptions const& ConstGet(kbeC_CDCTerm const& parent);
    static kbeC_ConnectorOptions& Get(kbeC_CDCTerm& parent);
};

extern template class ddr_ShortcutImpl<kbeC_ConnectorOptions>;
extern template class ddr_Shortcut<kbeC_ConnectorOptions>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 1>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 2>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 3>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 4>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorOptions, 5>;
extern template class ddr_MemberShortcut<kbeC_CDCTerm, kbeC_ConnectorOptions, 1>;
