#pragma once

#include "kbpC_BeamProfile.h"

/// An angle: a lying leg of length a and thickness t1, and a standing leg of length b and thickness
/// t2.
class kbpC_LbeamProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_LbeamProfile, kbpC_BeamProfile, 0x264000B, 203, "LProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_LbeamProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, a, 0.0)
    DD_FIELD(double, b, 0.0)
    DD_FIELD(double, t1, 0.0)
    DD_FIELD(double, t2, 0.0)
    DD_END
};
