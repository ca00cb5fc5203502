#pragma once

#include "kbpC_BeamProfile.h"

/// A solid circle of radius r.
class kbpC_CircularProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_CircularProfile, kbpC_BeamProfile, 0x2640003, 203, "CircularProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_CircularProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, r, 0.0)
    DD_END
};
