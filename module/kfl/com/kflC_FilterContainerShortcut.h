#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "ddr_ModelShortcut.h"
#include "ddr_StepAccess.h"
#include "kflC_Filter.h"

// The shortcuts from a model to its filters.

using kflC_FilterContainerIMPLSC = ddr_ShortcutImpl<kflC_FilterContainer>;
using kflC_FilterContainerShortcut = ddr_Shortcut<kflC_FilterContainer>;
using kflC_FilterContainerInModelShortcut = ddr_MemberShortcut<ddr_Model, kflC_FilterContainer, 1>;
using kflC_FilterIMPLSC = ddr_ShortcutImpl<kflC_Filter>;
using kflC_FilterShortcut = ddr_Shortcut<kflC_Filter>;
using kflC_FilterInFilterContainerShortcut =
    ddr_DictionaryShortcut<kflC_FilterContainer, kflC_Filter, 1>;

template <>
struct ddr_ShortcutTraits<kflC_FilterContainer> {
    static constexpr unsigned typeId = 0x351000A;
    static constexpr unsigned implTypeId = 0x351000B;
};
template <>
struct ddr_ShortcutTraits<kflC_Filter> {
    static constexpr unsigned typeId = 0x3510007;
    static constexpr unsigned implTypeId = 0x3510009;
};
template <>
struct ddr_StepTraits<kflC_FilterContainerInModelShortcut>
    : ddr_RepositoryInModel<kflC_FilterContainer> {
    static constexpr unsigned typeId = 0x351000C;
    static constexpr omn_FixedString Name() { return kflC_Filter::filterRepositoryCmd(); }
    static kflC_FilterContainer const& ConstGet(ddr_Model const& model) {
        return ConstRepository(model, ddr_Model::filterCmd());
    }
    static kflC_FilterContainer& Get(ddr_Model& model) {
        return Repository(model, ddr_Model::filterCmd());
    }
};
template <>
struct ddr_StepTraits<kflC_FilterInFilterContainerShortcut>
    : ddr_EntryByName<kflC_FilterContainer, kflC_Filter> {
    static constexpr unsigned typeId = 0x3510008;
};

extern template class ddr_ShortcutImpl<kflC_FilterContainer>;
extern template class ddr_Shortcut<kflC_FilterContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kflC_FilterContainer, 1>;
extern template class ddr_ShortcutImpl<kflC_Filter>;
extern template class ddr_Shortcut<kflC_Filter>;
extern template class ddr_DictionaryShortcut<kflC_FilterContainer, kflC_Filter, 1>;
