#pragma once

#include "kamC_Amplitude.h"

/// An exponential decay: initial + maximum exp(-(t - start) / decayTime), and initial before its
/// start.
class kamC_Decay : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_Decay, kamC_Amplitude, 0x2440003, 203, "DecayAmplitude")
public:
    /// Accepts everything.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_Decay* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, initial, 0.0)
    DD_FIELD(double, maximum, 0.0)
    DD_FIELD(double, start, 0.0)
    DD_FIELD(double, decayTime, 0.0)
    DD_END
};
