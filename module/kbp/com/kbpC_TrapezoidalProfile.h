#pragma once

#include "kbpC_BeamProfile.h"

/// A solid trapezoid: a wide below, c wide above, b high. The section's origin lies d above its
/// lower edge.
class kbpC_TrapezoidalProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_TrapezoidalProfile, kbpC_BeamProfile, 0x264000D, 203, "TrapezoidalProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_TrapezoidalProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, a, 0.0)
    DD_FIELD(double, b, 0.0)
    DD_FIELD(double, c, 0.0)
    DD_FIELD(double, d, 0.0)
    DD_END
};
