#pragma once

#include "kbeC_ConnectorFriction.h"
#include "kbeC_ConnectorPotentialShortcut.h"

// The shortcuts to derived components, to their terms, and into a list of terms. A friction's
// component is reached by a cast, in which a behaviour of another class fails. A component that is
// absent is a reference to null, and so are its terms.

using kbeC_CDCTermList = cls_xo1DArrayList<kbeC_CDCTerm>;
using kbeC_DerivedComponentIMPLSC = ddr_ShortcutImpl<kbeC_DerivedComponent>;
using kbeC_DerivedComponentShortcut = ddr_Shortcut<kbeC_DerivedComponent>;
using kbeC_CDCTermIMPLSC = ddr_ShortcutImpl<kbeC_CDCTerm>;
using kbeC_CDCTermShortcut = ddr_Shortcut<kbeC_CDCTerm>;
using kbeC_CDCTermListIMPLSC = ddr_ShortcutImpl<kbeC_CDCTermList>;
using kbeC_CDCTermListShortcut = ddr_Shortcut<kbeC_CDCTermList>;
using kbeC_DerivedComponentInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_DerivedComponent, 1>;
using kbeC_DerivedComponentInConnectorPotentialShortcut =
    ddr_MemberShortcut<kbeC_ConnectorPotential, kbeC_DerivedComponent, 1>;
using kbeC_CdcTermsListInDerivedComponentShortcut =
    ddr_MemberShortcut<kbeC_DerivedComponent, kbeC_CDCTermList, 1>;
using kbeC_CDCTermInCDCTermListShortcut = ddr_SequenceShortcut<kbeC_CDCTermList, kbeC_CDCTerm, 1>;

template <>
struct ddr_ShortcutTraits<kbeC_DerivedComponent> {
    static constexpr unsigned typeId = 0x2A8002F;
    static constexpr unsigned implTypeId = 0x2A80030;
};
template <>
struct ddr_ShortcutTraits<kbeC_CDCTerm> {
    static constexpr unsigned typeId = 0x2A80035;
    static constexpr unsigned implTypeId = 0x2A80033;
};
template <>
struct ddr_ShortcutTraits<kbeC_CDCTermList> {
    static constexpr unsigned typeId = 0x2A80036;
    static constexpr unsigned implTypeId = 0x2A80037;
};
template <>
struct ddr_StepTraits<kbeC_DerivedComponentInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A80032;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorFriction::derivedComponentCmd();
    }
    static kbeC_DerivedComponent const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_DerivedComponent& Get(kbeC_ConnectorBehaviorOption& parent);
};
template <>
struct ddr_StepTraits<kbeC_DerivedComponentInConnectorPotentialShortcut> {
    static constexpr unsigned typeId = 0x2A80031;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorPotential::derivedComponentCmd();
    }
    static kbeC_DerivedComponent const& ConstGet(kbeC_ConnectorPotential const& parent);
    static kbeC_DerivedComponent& Get(kbeC_ConnectorPotential& parent);
};
template <>
struct ddr_StepTraits<kbeC_CdcTermsListInDerivedComponentShortcut> {
    static constexpr unsigned typeId = 0x2A80038;
    static constexpr omn_FixedString Name() { return kbeC_DerivedComponent::cdcTermsCmd(); }
    static kbeC_CDCTermList const& ConstGet(kbeC_DerivedComponent const& parent);
    static kbeC_CDCTermList& Get(kbeC_DerivedComponent& parent);
};
template <>
struct ddr_StepTraits<kbeC_CDCTermInCDCTermListShortcut>
    : ddr_ElementByValue<kbeC_CDCTermList, kbeC_CDCTerm> {
    static constexpr unsigned typeId = 0x2A80034;
};

extern template class ddr_ShortcutImpl<kbeC_DerivedComponent>;
extern template class ddr_Shortcut<kbeC_DerivedComponent>;
extern template class ddr_ShortcutImpl<kbeC_CDCTerm>;
extern template class ddr_Shortcut<kbeC_CDCTerm>;
extern template class ddr_ShortcutImpl<kbeC_CDCTermList>;
extern template class ddr_Shortcut<kbeC_CDCTermList>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_DerivedComponent, 1>;
extern template class ddr_MemberShortcut<kbeC_ConnectorPotential, kbeC_DerivedComponent, 1>;
extern template class ddr_MemberShortcut<kbeC_DerivedComponent, kbeC_CDCTermList, 1>;
extern template class ddr_SequenceShortcut<kbeC_CDCTermList, kbeC_CDCTerm, 1>;
