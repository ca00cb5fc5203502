#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "ddr_ModelShortcut.h"
#include "ddr_StepAccess.h"
#include "kbpC_BeamProfile.h"

// The shortcuts from a model to its beam profiles.

using kbpC_BeamProfileContainerIMPLSC = ddr_ShortcutImpl<kbpC_BeamProfileContainer>;
using kbpC_BeamProfileContainerShortcut = ddr_Shortcut<kbpC_BeamProfileContainer>;
using kbpC_BeamProfileContainerInModelShortcut =
    ddr_MemberShortcut<ddr_Model, kbpC_BeamProfileContainer, 1>;
using kbpC_BeamProfileIMPSC = ddr_ShortcutImpl<kbpC_BeamProfile>;
using kbpC_BeamProfileShortcut = ddr_Shortcut<kbpC_BeamProfile>;
using kbpC_BeamProfileInBeamProfileContainerShortcut =
    ddr_DictionaryShortcut<kbpC_BeamProfileContainer, kbpC_BeamProfile, 1>;

template <>
struct ddr_ShortcutTraits<kbpC_BeamProfileContainer> {
    static constexpr unsigned typeId = 0x264000E;
    static constexpr unsigned implTypeId = 0x264000F;
};
template <>
struct ddr_ShortcutTraits<kbpC_BeamProfile> {
    static constexpr unsigned typeId = 0x2640010;
    static constexpr unsigned implTypeId = 0x2640012;
};
template <>
struct ddr_StepTraits<kbpC_BeamProfileContainerInModelShortcut>
    : ddr_RepositoryInModel<kbpC_BeamProfileContainer> {
    static constexpr unsigned typeId = 0x2640013;
    static constexpr omn_FixedString Name() { return kbpC_BeamProfile::profileRepositoryCmd(); }
    static kbpC_BeamProfileContainer const& ConstGet(ddr_Model const& model) {
        return ConstRepository(model, ddr_Model::profileCmd());
    }
    static kbpC_BeamProfileContainer& Get(ddr_Model& model) {
        return Repository(model, ddr_Model::profileCmd());
    }
};
template <>
struct ddr_StepTraits<kbpC_BeamProfileInBeamProfileContainerShortcut>
    : ddr_EntryByName<kbpC_BeamProfileContainer, kbpC_BeamProfile> {
    static constexpr unsigned typeId = 0x2640011;
};

extern template class ddr_ShortcutImpl<kbpC_BeamProfileContainer>;
extern template class ddr_Shortcut<kbpC_BeamProfileContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kbpC_BeamProfileContainer, 1>;
extern template class ddr_ShortcutImpl<kbpC_BeamProfile>;
extern template class ddr_Shortcut<kbpC_BeamProfile>;
extern template class ddr_DictionaryShortcut<kbpC_BeamProfileContainer, kbpC_BeamProfile, 1>;
