#pragma once

#include "kbpC_BeamProfile.h"

/// A T of height h: a flange above with width b and thickness tf, and a web of thickness tw. The
/// section's origin lies l above its lower edge.
class kbpC_TbeamProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_TbeamProfile, kbpC_BeamProfile, 0x264000C, 203, "TProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_TbeamProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, b, 0.0)
    DD_FIELD(double, h, 0.0)
    DD_FIELD(double, l, 0.0)
    DD_FIELD(double, tf, 0.0)
    DD_FIELD(double, tw, 0.0)
    DD_END
};
