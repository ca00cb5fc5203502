#pragma once

#include "kmaC_MaterialContainerShortcut.h"

// The shortcuts to the options of a material and to the sub-options of an option. Both select the
// member by the key's text, and a sub-option first by the option's dynamic class.
//
// An option that the material does not have gives a reference to null, and so does a sub-option of
// an option that is absent: callers who cannot know ask ddr_Shortcut for the pointer.

using kmaC_MaterialOptionIMPLSC = ddr_ShortcutImpl<kmaC_MaterialOption>;
using kmaC_MaterialOptionShortcut = ddr_Shortcut<kmaC_MaterialOption>;
using kmaC_MaterialOptionInMaterialShortcut =
    ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
using kmaC_MaterialOptionInMaterialOptionShortcut =
    ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;

/// The text of a failure of these shortcuts; empty beyond 25. Apart from the codes of the options'
/// rules.
atr_String kmaC_ShortcutErrorText(int code);

/// Whether the key leads from an object of that class, a material or an option, to one of its
/// members. Members without a key are reached as attributes only. Asks for reading: one class knows
/// a member by another key for writing.
bool kmaC_IsOptionKey(unsigned typeId, char const* key);

template <>
struct ddr_ShortcutTraits<kmaC_MaterialOption> {
    static constexpr unsigned typeId = 0x238006C;
    static constexpr unsigned implTypeId = 0x238006F;
};
template <>
struct ddr_StepTraits<kmaC_MaterialOptionInMaterialShortcut> {
    static constexpr unsigned typeId = 0x238006D;
    /// The key as a string literal of the script language.
    static cow_String PathStep(cow_String const& key);
    static kmaC_MaterialOption const& ConstGet(kmaC_Material const& material,
                                               cow_String const& key);
    static kmaC_MaterialOption& Get(kmaC_Material& material, cow_String const& key);
};
template <>
struct ddr_StepTraits<kmaC_MaterialOptionInMaterialOptionShortcut> {
    static constexpr unsigned typeId = 0x238006E;
    static cow_String PathStep(cow_String const& key);
    static kmaC_MaterialOption const& ConstGet(kmaC_MaterialOption const& option,
                                               cow_String const& key);
    static kmaC_MaterialOption& Get(kmaC_MaterialOption& option, cow_String const& key);
};

extern template class ddr_ShortcutImpl<kmaC_MaterialOption>;
extern template class ddr_Shortcut<kmaC_MaterialOption>;
extern template class ddr_DictionaryShortcut<kmaC_Material, kmaC_MaterialOption, 1>;
extern template class ddr_DictionaryShortcut<kmaC_MaterialOption, kmaC_MaterialOption, 1>;
