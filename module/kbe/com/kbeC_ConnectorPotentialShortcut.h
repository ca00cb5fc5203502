#pragma once

#include "kbeC_ConnectorBehaviorOptionShortcut.h"
#include "kbeC_ConnectorDamage.h"
#include "kbeC_ConnectorFriction.h"
#include "kbeC_ConnectorPlasticity.h"

// The shortcuts to the force potentials of behaviours, and into a list of them.
//
// Only the step to "connectorPotentials" asks the behaviour for its class. The other two compare
// the class of the family's base, so that Get and ConstGet raise whatever the behaviour is; names,
// paths, copies and persistence work as in any step. Scripts and databases depend on it.

using kbeC_ConnectorPotentialList = cls_xo1DArrayList<kbeC_ConnectorPotential>;
using kbeC_ConnectorPotentialIMPLSC = ddr_ShortcutImpl<kbeC_ConnectorPotential>;
using kbeC_ConnectorPotentialShortcut = ddr_Shortcut<kbeC_ConnectorPotential>;
using kbeC_ConnectorPotentialListIMPLSC = ddr_ShortcutImpl<kbeC_ConnectorPotentialList>;
using kbeC_ConnectorPotentialListShortcut = ddr_Shortcut<kbeC_ConnectorPotentialList>;
using kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 1>;
using kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 2>;
using kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList, 3>;
using kbeC_ConnectorPotentialInConnectorPotentialListShortcut =
    ddr_SequenceShortcut<kbeC_ConnectorPotentialList, kbeC_ConnectorPotential, 1>;

template <>
struct ddr_ShortcutTraits<kbeC_ConnectorPotential> {
    static constexpr unsigned typeId = 0x2A80020;
    static constexpr unsigned implTypeId = 0x2A80024;
};
template <>
struct ddr_ShortcutTraits<kbeC_ConnectorPotentialList> {
    static constexpr unsigned typeId = 0x2A80022;
    static constexpr unsigned implTypeId = 0x2A80025;
};
template <>
struct ddr_StepTraits<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80026;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorDamage::initiationPotentialsCmd();
    }
    static kbeC_ConnectorPotentialList const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorPotentialList& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80027;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorDamage::evolutionPotentialsCmd();
    }
    static kbeC_ConnectorPotentialList const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorPotentialList& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80028;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorFriction::connectorPotentialsCmd();
    }
    static kbeC_ConnectorPotentialList const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_ConnectorPotentialList& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_ConnectorPotentialInConnectorPotentialListShortcut>
    : ddr_ElementByValue<kbeC_ConnectorPotentialList, kbeC_ConnectorPotential> {
    static constexpr unsigned typeId = 0x2A80023;
};

extern template class ddr_ShortcutImpl<kbeC_ConnectorPotential>;
extern template class ddr_Shortcut<kbeC_ConnectorPotential>;
extern template class ddr_ShortcutImpl<kbeC_ConnectorPotentialList>;
extern template class ddr_Shortcut<kbeC_ConnectorPotentialList>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList,
                                         1>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList,
                                         2>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_ConnectorPotentialList,
                                         3>;
extern template class ddr_SequenceShortcut<kbeC_ConnectorPotentialList, kbeC_ConnectorPotential, 1>;
