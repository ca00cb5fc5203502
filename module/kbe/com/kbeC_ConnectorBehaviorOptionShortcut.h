#pragma once

#include "ddr_MemberShortcut.h"
#include "ddr_SequenceShortcut.h"
#include "ddr_StepAccess.h"
#include "kbeC_BehaviorOptionContainer.h"
#include "kbeC_ConnectorBehaviorOptionList.h"

// The shortcuts to connector behaviours: by their place in a section's list, or by their number in
// a repository. Whoever holds the list or the repository has the step that leads to it.

using kbeC_ConnectorBehaviorOptionIMPLSC = ddr_ShortcutImpl<kbeC_ConnectorBehaviorOption>;
using kbeC_ConnectorBehaviorOptionShortcut = ddr_Shortcut<kbeC_ConnectorBehaviorOption>;
using kbeC_ConnectorBehaviorOptionListIMPLSC = ddr_ShortcutImpl<kbeC_ConnectorBehaviorOptionList>;
using kbeC_ConnectorBehaviorOptionListShortcut = ddr_Shortcut<kbeC_ConnectorBehaviorOptionList>;
using kbeC_BehaviorOptionContainerIMPLSC = ddr_ShortcutImpl<kbeC_BehaviorOptionContainer>;
using kbeC_BehaviorOptionContainerShortcut = ddr_Shortcut<kbeC_BehaviorOptionContainer>;
using kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut =
    ddr_SequenceShortcut<kbeC_ConnectorBehaviorOptionList, kbeC_ConnectorBehaviorOption, 1>;
using kbeC_BehaviorOptionInBehaviorOptionContainerShortcut =
    ddr_SequenceShortcut<kbeC_BehaviorOptionContainer, kbeC_ConnectorBehaviorOption, 1>;

template <>
struct ddr_ShortcutTraits<kbeC_ConnectorBehaviorOption> {
    static constexpr unsigned typeId = 0x2A8003D;
    static constexpr unsigned implTypeId = 0x2A80010;
};
template <>
struct ddr_ShortcutTraits<kbeC_ConnectorBehaviorOptionList> {
    static constexpr unsigned typeId = 0x2A8003A;
    static constexpr unsigned implTypeId = 0x2A8003B;
};
template <>
struct ddr_ShortcutTraits<kbeC_BehaviorOptionContainer> {
    static constexpr unsigned typeId = 0x2A80013;
    static constexpr unsigned implTypeId = 0x2A80014;
};
template <>
struct ddr_StepTraits<kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut>
    : ddr_ElementOfHandles<kbeC_ConnectorBehaviorOptionList, kbeC_ConnectorBehaviorOption> {
    static constexpr unsigned typeId = 0x2A8003C;
};
template <>
struct ddr_StepTraits<kbeC_BehaviorOptionInBehaviorOptionContainerShortcut>
    : ddr_EntryByNumber<kbeC_BehaviorOptionContainer, kbeC_ConnectorBehaviorOption> {
    static constexpr unsigned typeId = 0x2A80011;
};

extern template class ddr_ShortcutImpl<kbeC_ConnectorBehaviorOption>;
extern template class ddr_Shortcut<kbeC_ConnectorBehaviorOption>;
extern template class ddr_ShortcutImpl<kbeC_ConnectorBehaviorOptionList>;
extern template class ddr_Shortcut<kbeC_ConnectorBehaviorOptionList>;
extern template class ddr_ShortcutImpl<kbeC_BehaviorOptionContainer>;
extern template class ddr_Shortcut<kbeC_BehaviorOptionContainer>;
extern template class ddr_SequenceShortcut<kbeC_ConnectorBehaviorOptionList,
                                           kbeC_ConnectorBehaviorOption, 1>;
extern template class ddr_SequenceShortcut<kbeC_BehaviorOptionContainer,
                                           kbeC_ConnectorBehaviorOption, 1>;
