#pragma once

#include "kamC_Amplitude.h"

/// A Fourier series a_0 + sum of A_n cos(n w (t - start)) + B_n sin(n w (t - start)), and a_0
/// before its start.
class kamC_Periodic : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_Periodic, kamC_Amplitude, 0x2440006, 424, "PeriodicAmplitude")
public:
    /// A frequency of zero passes.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_Periodic* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, frequency, 0.0)  ///< circular frequency w, radians per time
    DD_FIELD(double, start, 0.0)
    DD_FIELD(double, a_0, 0.0)
    DD_FIELD(cls_xp2DArrayDouble, data)  ///< row n - 1 holds A_n and B_n
    DD_END
};
