#pragma once

#include "kbpC_BeamProfile.h"

/// An I of height h: flange 1 below with width b1 and thickness t1, flange 2 above, and a web of
/// thickness t3. The section's origin lies l above its lower edge. A flange of no width is absent.
class kbpC_IbeamProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_IbeamProfile, kbpC_BeamProfile, 0x2640006, 430, "IProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_IbeamProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, l, 0.0)
    DD_FIELD(double, h, 0.0)
    DD_FIELD(double, b1, 0.0)
    DD_FIELD(double, b2, 0.0)
    DD_FIELD(double, t1, 0.0)
    DD_FIELD(double, t2, 0.0)
    DD_FIELD(double, t3, 0.0)
    DD_END
};
