#pragma once

#include "kbpC_BeamProfile.h"

/// A rectangular hollow section of width a and height b. Walls 1 and 3 stand upright, 2 and 4 lie;
/// with a uniform thickness, t1 is that of all.
class kbpC_BoxProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_BoxProfile, kbpC_BeamProfile, 0x2640007, 430, "BoxProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_BoxProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, a, 0.0)
    DD_FIELD(double, b, 0.0)
    DD_FIELD(bool, uniformThickness, false)
    DD_FIELD(double, t1, 0.0)
    DD_FIELD(double, t2, 0.0)
    DD_FIELD(double, t3, 0.0)
    DD_FIELD(double, t4, 0.0)
    DD_END
};
