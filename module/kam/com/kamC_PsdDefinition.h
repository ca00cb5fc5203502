#pragma once

#include "kamC_Amplitude.h"

/// A power spectral density for random response: one row a frequency.
class kamC_PsdDefinition : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_PsdDefinition, kamC_Amplitude, 0x2440009, 203, "PsdDefinition")
public:
    /// Acceleration of the base in units of g, force, or decibels.
    DD_ENUM(PsdTypeEnm, BASE, FORCE, DB)

    virtual void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_PsdDefinition* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(PsdTypeEnm, type, PsdTypeEnm::FORCE)
    DD_FIELD(double, dbReference, 0.0)  ///< the power that 0 dB stands for
    DD_FIELD(double, g, 1.0)            ///< acceleration of gravity in the model's units
    DD_FIELD(bool, user, false)         ///< given by a subroutine of the user
    /// Rows of the density's real part, its imaginary part, and frequency.
    DD_FIELD_AS(cls_xp2DArrayDouble, table, "data")
    DD_END
};
