#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "ddr_ModelShortcut.h"
#include "ddr_StepAccess.h"
#include "kmaC_Material.h"

// The shortcuts from a model to its materials.

using kmaC_MaterialContainerIMPLSC = ddr_ShortcutImpl<kmaC_MaterialContainer>;
using kmaC_MaterialContainerShortcut = ddr_Shortcut<kmaC_MaterialContainer>;
using kmaC_MaterialContainerInModelShortcut =
    ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;
using kmaC_MaterialIMPLSC = ddr_ShortcutImpl<kmaC_Material>;
using kmaC_MaterialShortcut = ddr_Shortcut<kmaC_Material>;
using kmaC_MaterialInMaterialContainerShortcut =
    ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;

template <>
struct ddr_ShortcutTraits<kmaC_MaterialContainer> {
    static constexpr unsigned typeId = 0x238006A;
    static constexpr unsigned implTypeId = 0x238006B;
};
template <>
struct ddr_ShortcutTraits<kmaC_Material> {
    static constexpr unsigned typeId = 0x2380067;
    static constexpr unsigned implTypeId = 0x2380069;
};
template <>
struct ddr_StepTraits<kmaC_MaterialContainerInModelShortcut>
    : ddr_RepositoryInModel<kmaC_MaterialContainer> {
    static constexpr unsigned typeId = 0x238007C;
    static constexpr omn_FixedString Name() { return kmaC_Material::materialRepositoryCmd(); }
    static kmaC_MaterialContainer const& ConstGet(ddr_Model const& model) {
        return ConstRepository(model, ddr_Model::materialCmd());
    }
    static kmaC_MaterialContainer& Get(ddr_Model& model) {
        return Repository(model, ddr_Model::materialCmd());
    }
};
template <>
struct ddr_StepTraits<kmaC_MaterialInMaterialContainerShortcut>
    : ddr_EntryByName<kmaC_MaterialContainer, kmaC_Material> {
    static constexpr unsigned typeId = 0x2380068;
};

extern template class ddr_ShortcutImpl<kmaC_MaterialContainer>;
extern template class ddr_Shortcut<kmaC_MaterialContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;
extern template class ddr_ShortcutImpl<kmaC_Material>;
extern template class ddr_Shortcut<kmaC_Material>;
extern template class ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;
