#pragma once

#include "kamC_Amplitude.h"

/// An amplitude that the solver finds as it goes, such as the pressure of superplastic forming,
/// within limits.
class kamC_SolutionDependent : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_SolutionDependent, kamC_Amplitude, 0x2440007, 203,
                        "SolutionDependentAmplitude")
public:
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_SolutionDependent* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, initial, 1.0)
    DD_FIELD(double, minimum, 0.1)
    DD_FIELD(double, maximum, 1000.0)
    DD_END
};
