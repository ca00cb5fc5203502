#pragma once

#include "kbpC_BeamProfile.h"

/// A solid rectangle of width a and height b.
class kbpC_RectangularProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_RectangularProfile, kbpC_BeamProfile, 0x264000A, 203, "RectangularProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_RectangularProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, a, 0.0)
    DD_FIELD(double, b, 0.0)
    DD_END
};
