#pragma once

#include "kamC_Amplitude.h"

/// The product of two sines: initial + magnitude sin(w1 (t - start)) sin(w2 (t - start)), and
/// initial before its start.
class kamC_Modulated : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_Modulated, kamC_Amplitude, 0x2440005, 203, "ModulatedAmplitude")
public:
    /// Accepts everything.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_Modulated* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, initial, 0.0)
    DD_FIELD(double, magnitude, 0.0)
    DD_FIELD(double, start, 0.0)
    DD_FIELD(double, frequency1, 0.0)  ///< circular frequency w1, radians per time
    DD_FIELD(double, frequency2, 0.0)  ///< circular frequency w2
    DD_END
};
