#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "ddr_ModelShortcut.h"
#include "ddr_StepAccess.h"
#include "kamC_Amplitude.h"

// The shortcuts from a model to its amplitudes.

using kamC_AmplitudeContainerIMPLSC = ddr_ShortcutImpl<kamC_AmplitudeContainer>;
using kamC_AmplitudeContainerShortcut = ddr_Shortcut<kamC_AmplitudeContainer>;
using kamC_AmplitudeContainerInModelShortcut =
    ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;
using kamC_AmplitudeIMPLSC = ddr_ShortcutImpl<kamC_Amplitude>;
using kamC_AmplitudeShortcut = ddr_Shortcut<kamC_Amplitude>;
using kamC_AmplitudeInAmplitudeContainerShortcut =
    ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;

template <>
struct ddr_ShortcutTraits<kamC_AmplitudeContainer> {
    static constexpr unsigned typeId = 0x2440010;
    static constexpr unsigned implTypeId = 0x2440011;
};
template <>
struct ddr_ShortcutTraits<kamC_Amplitude> {
    static constexpr unsigned typeId = 0x244000D;
    static constexpr unsigned implTypeId = 0x244000F;
};
template <>
struct ddr_StepTraits<kamC_AmplitudeContainerInModelShortcut>
    : ddr_RepositoryInModel<kamC_AmplitudeContainer> {
    static constexpr unsigned typeId = 0x2440016;
    static constexpr omn_FixedString Name() { return kamC_Amplitude::amplitudeRepositoryCmd(); }
    static kamC_AmplitudeContainer const& ConstGet(ddr_Model const& model) {
        return ConstRepository(model, ddr_Model::amplitudeCmd());
    }
    static kamC_AmplitudeContainer& Get(ddr_Model& model) {
        return Repository(model, ddr_Model::amplitudeCmd());
    }
};
template <>
struct ddr_StepTraits<kamC_AmplitudeInAmplitudeContainerShortcut>
    : ddr_EntryByName<kamC_AmplitudeContainer, kamC_Amplitude> {
    static constexpr unsigned typeId = 0x244000E;
};

extern template class ddr_ShortcutImpl<kamC_AmplitudeContainer>;
extern template class ddr_Shortcut<kamC_AmplitudeContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;
extern template class ddr_ShortcutImpl<kamC_Amplitude>;
extern template class ddr_Shortcut<kamC_Amplitude>;
extern template class ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;
