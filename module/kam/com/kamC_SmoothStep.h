#pragma once

#include "kamC_Amplitude.h"

/// An amplitude given by points, between which it goes with neither slope nor curvature at the
/// points themselves.
class kamC_SmoothStep : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_SmoothStep, kamC_Amplitude, 0x244000B, 424, "SmoothStepAmplitude")
public:
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_SmoothStep* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(cls_xp2DArrayDouble, data)  ///< rows of time and value
    DD_END
};
