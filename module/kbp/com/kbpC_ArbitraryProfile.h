#pragma once

#include "kbpC_BeamProfile.h"

/// A thin-walled section of straight segments. Rows of the table are the points in turn: x, y, and
/// the thickness of the segment that ends at the point; the first row's thickness means nothing.
class kbpC_ArbitraryProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_ArbitraryProfile, kbpC_BeamProfile, 0x2640009, 505, "ArbitraryProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_ArbitraryProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(cls_xp2DArrayDouble, table)
    DD_END
};
