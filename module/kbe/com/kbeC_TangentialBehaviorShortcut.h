#pragma once

#include "kbeC_ConnectorBehaviorOptionShortcut.h"
#include "kbeC_ConnectorFriction.h"

// The shortcut to the friction law of a friction. A behaviour of another class fails in its cast; a
// law that is absent is a reference to null.

using kbeC_TangentialBehaviorIMPLSC = ddr_ShortcutImpl<kbeC_TangentialBehavior>;
using kbeC_TangentialBehaviorShortcut = ddr_Shortcut<kbeC_TangentialBehavior>;
using kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut =
    ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_TangentialBehavior, 1>;

template <>
struct ddr_ShortcutTraits<kbeC_TangentialBehavior> {
    static constexpr unsigned typeId = 0x2A8002A;
    static constexpr unsigned implTypeId = 0x2A8002B;
};
template <>
struct ddr_StepTraits<kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut> {
    static constexpr unsigned typeId = 0x2A8002C;
    static constexpr omn_FixedString Name() {
        return kbeC_ConnectorFriction::tangentialBehaviorCmd();
    }
    static kbeC_TangentialBehavior const& ConstGet(kbeC_ConnectorBehaviorOption const& parent);
    static kbeC_TangentialBehavior& Get(kbeC_ConnectorBehaviorOption& parent);
};

extern template class ddr_ShortcutImpl<kbeC_TangentialBehavior>;
extern template class ddr_Shortcut<kbeC_TangentialBehavior>;
extern template class ddr_MemberShortcut<kbeC_ConnectorBehaviorOption, kbeC_TangentialBehavior, 1>;
