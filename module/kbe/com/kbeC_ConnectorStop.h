#pragma once

#include "kbeC_ConnectorBehaviorOption.h"

/// Limits of the motion of some components; one of the two is enough.
class kbeC_ConnectorStop : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorStop, kbeC_ConnectorBehaviorOption, 0x2A80019, 811, "ConnectorStop")
public:
    KBE_EQUALITY(kbeC_ConnectorStop)

    DD_FIELD(double, minMotion, kbeC_NotSet)
    DD_FIELD(double, maxMotion, kbeC_NotSet)
    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_END
};
