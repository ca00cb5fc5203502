#pragma once

#include "kamC_Amplitude.h"

/// A response spectrum: the largest response of oscillators to an event, over their frequency.
class kamC_Spectrum : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_Spectrum, kamC_Amplitude, 0x244000A, 203, "Spectrum")
public:
    DD_ENUM(SpectrumTypeEnm, DISPLACEMENT, VELOCITY, ACCELERATION)

    virtual void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_Spectrum* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(SpectrumTypeEnm, type, SpectrumTypeEnm::ACCELERATION)
    DD_FIELD(double, g, 0.0)  ///< acceleration of gravity in the model's units
    /// Rows of magnitude, frequency and damping ratio.
    DD_FIELD_AS(cls_xp2DArrayDouble, table, "data")
    DD_END
};
