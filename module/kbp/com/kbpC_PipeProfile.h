#pragma once

#include "kbpC_BeamProfile.h"

/// A circular tube of outer radius r and wall thickness t.
class kbpC_PipeProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_PipeProfile, kbpC_BeamProfile, 0x2640005, 406, "PipeProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_PipeProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, r, 0.0)
    DD_FIELD(double, t, 0.0)
    DD_END
};
