#include "kbeC_ConnectorBehaviorOptionShortcut.h"

template class ddr_ShortcutImpl<kbeC_ConnectorBehaviorOption>;
template class ddr_Shortcut<kbeC_ConnectorBehaviorOption>;
template class ddr_ShortcutImpl<kbeC_ConnectorBehaviorOptionList>;
template class ddr_Shortcut<kbeC_ConnectorBehaviorOptionList>;
template class ddr_ShortcutImpl<kbeC_BehaviorOptionContainer>;
template class ddr_Shortcut<kbeC_BehaviorOptionContainer>;
template class ddr_SequenceShortcut<kbeC_ConnectorBehaviorOptionList, kbeC_ConnectorBehaviorOption,
                                    1>;
template class ddr_SequenceShortcut<kbeC_BehaviorOptionContainer, kbeC_ConnectorBehaviorOption, 1>;
