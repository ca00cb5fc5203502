#include "kmaC_MaterialContainerShortcut.h"

template class ddr_ShortcutImpl<kmaC_MaterialContainer>;
template class ddr_Shortcut<kmaC_MaterialContainer>;
template class ddr_MemberShortcut<ddr_Model, kmaC_MaterialContainer, 1>;
template class ddr_ShortcutImpl<kmaC_Material>;
template class ddr_Shortcut<kmaC_Material>;
template class ddr_DictionaryShortcut<kmaC_MaterialContainer, kmaC_Material, 1>;
