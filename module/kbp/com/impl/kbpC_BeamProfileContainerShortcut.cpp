#include "kbpC_BeamProfileContainerShortcut.h"

template class ddr_ShortcutImpl<kbpC_BeamProfileContainer>;
template class ddr_Shortcut<kbpC_BeamProfileContainer>;
template class ddr_MemberShortcut<ddr_Model, kbpC_BeamProfileContainer, 1>;
template class ddr_ShortcutImpl<kbpC_BeamProfile>;
template class ddr_Shortcut<kbpC_BeamProfile>;
template class ddr_DictionaryShortcut<kbpC_BeamProfileContainer, kbpC_BeamProfile, 1>;
