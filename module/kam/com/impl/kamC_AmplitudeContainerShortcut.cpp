#include "kamC_AmplitudeContainerShortcut.h"

template class ddr_ShortcutImpl<kamC_AmplitudeContainer>;
template class ddr_Shortcut<kamC_AmplitudeContainer>;
template class ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;
template class ddr_ShortcutImpl<kamC_Amplitude>;
template class ddr_Shortcut<kamC_Amplitude>;
template class ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;
