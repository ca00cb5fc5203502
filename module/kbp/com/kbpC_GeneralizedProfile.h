#pragma once

#include "kbpC_BeamProfile.h"

/// A section given by its properties and not by its shape.
class kbpC_GeneralizedProfile : public kbpC_BeamProfile {
    DD_CLASS(kbpC_GeneralizedProfile, kbpC_BeamProfile, 0x2640002, 430, "GeneralizedProfile")
public:
    int NumTempPoints(bool flag) const override;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kbpC_GeneralizedProfile* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, area, 0.0)
    DD_FIELD(double, i11, 0.0)  ///< second moment about axis 1
    DD_FIELD(double, i12, 0.0)
    DD_FIELD(double, i22, 0.0)     ///< second moment about axis 2
    DD_FIELD(double, j, 0.0)       ///< polar moment of inertia
    DD_FIELD(double, gammaO, 0.0)  ///< sectorial moment
    DD_FIELD(double, gammaW, 0.0)  ///< warping constant
    DD_END
};
