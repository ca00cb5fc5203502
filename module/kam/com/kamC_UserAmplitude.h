#pragma once

#include "kamC_Amplitude.h"

/// An amplitude that a subroutine of the user gives.
class kamC_UserAmplitude : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_UserAmplitude, kamC_Amplitude, 0x244001A, 1111, "UserAmplitude")
public:
    /// Accepts everything.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_UserAmplitude* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(int, numVariables, 0)  ///< state variables of the subroutine
    DD_END
};
