#pragma once

#include "ddr_SequenceShortcut.h"
#include "kmaC_MaterialOptionList.h"
#include "kmaC_MaterialOptionShortcut.h"
#include "kmaC_MullinsEffect.h"

// The shortcuts to the lists of test data of kmaC_MullinsEffect, and into such a list.
//
// The steps to the lists compare the class of the family's base with that of kmaC_MullinsEffect, so
// that Get and ConstGet raise whatever the option is; names, paths, copies and persistence work as
// in any step. Scripts and databases depend on it.

using kmaC_MaterialOptionListIMPLSC = ddr_ShortcutImpl<kmaC_MaterialOptionList>;
using kmaC_MaterialOptionListShortcut = ddr_Shortcut<kmaC_MaterialOptionList>;
using kmaC_UniaxialTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 1>;
using kmaC_BiaxialTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 2>;
using kmaC_PlanarTestsListInMaterialOptionShortcut =
    ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 3>;
using kmaC_MaterialOptionListInMullinsEffectShortcut =
    ddr_SequenceShortcut<kmaC_MaterialOptionList, kmaC_MaterialOption, 1>;

template <>
struct ddr_ShortcutTraits<kmaC_MaterialOptionList> {
    static constexpr unsigned typeId = 0x2380088;
    static constexpr unsigned implTypeId = 0x2380089;
};
template <>
struct ddr_StepTraits<kmaC_UniaxialTestsListInMaterialOptionShortcut> {
    static constexpr unsigned typeId = 0x238008B;
    static constexpr omn_FixedString Name() { return kmaC_MullinsEffect::uniaxialTestsCmd(); }
    static kmaC_MaterialOptionList const& ConstGet(kmaC_MaterialOption const& option);
    static kmaC_MaterialOptionList& Get(kmaC_MaterialOption& option);
};
template <>
struct ddr_StepTraits<kmaC_BiaxialTestsListInMaterialOptionShortcut> {
    static constexpr unsigned typeId = 0x238008C;
    static constexpr omn_FixedString Name() { return kmaC_MullinsEffect::biaxialTestsCmd(); }
    static kmaC_MaterialOptionList const& ConstGet(kmaC_MaterialOption const& option);
    static kmaC_MaterialOptionList& Get(kmaC_MaterialOption& option);
};
template <>
struct ddr_StepTraits<kmaC_PlanarTestsListInMaterialOptionShortcut> {
    static constexpr unsigned typeId = 0x238008D;
    static constexpr omn_FixedString Name() { return kmaC_MullinsEffect::planarTestsCmd(); }
    static kmaC_MaterialOptionList const& ConstGet(kmaC_MaterialOption const& option);
    static kmaC_MaterialOptionList& Get(kmaC_MaterialOption& option);
};
template <>
struct ddr_StepTraits<kmaC_MaterialOptionListInMullinsEffectShortcut>
    : ddr_ElementOfHandles<kmaC_MaterialOptionList, kmaC_MaterialOption> {
    static constexpr unsigned typeId = 0x238008A;
};

extern template class ddr_ShortcutImpl<kmaC_MaterialOptionList>;
extern template class ddr_Shortcut<kmaC_MaterialOptionList>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 1>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 2>;
extern template class ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MaterialOptionList, 3>;
extern template class ddr_SequenceShortcut<kmaC_MaterialOptionList, kmaC_MaterialOption, 1>;
