#pragma once

#include "kamC_Amplitude.h"

/// An amplitude that a coupled control program drives.
class kamC_ActuatorAmplitude : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_ActuatorAmplitude, kamC_Amplitude, 0x2440019, 1111,
                        "ActuatorAmplitude")
public:
    /// Accepts everything.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_ActuatorAmplitude* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }
    DD_END
};
