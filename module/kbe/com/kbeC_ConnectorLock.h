#pragma once

#include "kbeC_ConnectorBehaviorOption.h"

/// Locks a component once the motion or the force in some components reaches a limit.
/// One limit is enough.
class kbeC_ConnectorLock : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorLock, kbeC_ConnectorBehaviorOption, 0x2A8001A, 811, "ConnectorLock")
public:
    KBE_EQUALITY(kbeC_ConnectorLock)

    /// The word for all components, which the field holds as allComponents. Nothing here turns the
    /// one into the other.
    DD_ENUM(LockingComponentEnm, ALL)
    static constexpr int allComponents = -1;

    /// 1 to 6, or allComponents, or not set.
    DD_FIELD(int, lockingComponent, kbeC_NotSetInt)
    DD_FIELD(double, minMotion, kbeC_NotSet)
    DD_FIELD(double, maxMotion, kbeC_NotSet)
    DD_FIELD(double, minForce, kbeC_NotSet)
    DD_FIELD(double, maxForce, kbeC_NotSet)
    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_END
};
