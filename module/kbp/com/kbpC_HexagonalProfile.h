#pragma once

#include "kbpC_BeamProfile.h"

/// A hexagonal tube of circumscribed radius r and wall thickness t.
class kbpC_HexagonalProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_HexagonalProfile, kbpC_BeamProfile, 0x2640004, 203, "HexagonalProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_HexagonalProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, r, 0.0)
    DD_FIELD(double, t, 0.0)
    DD_END
};
