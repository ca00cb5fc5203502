#pragma once

#include "kmaC_MaterialOption.h"

/// A material whose behaviour a user's routine computes from the constants given here.
class kmaC_UserMaterial : public kmaC_MaterialOption {
    DD_CLASS(kmaC_UserMaterial, kmaC_MaterialOption, 0x2380053, 451, "UserMaterial")
public:
    DD_ENUM(TypeEnm, MECHANICAL, THERMAL, THERMOMECHANICAL)

    DD_FIELD(TypeEnm, type, TypeEnm::MECHANICAL)
    DD_FIELD(bool, unsymm, false)  ///< the stiffness is not symmetric
    DD_FIELD(cls_xp1DArrayListDouble, mechanicalConstants)
    DD_FIELD(cls_xp1DArrayListDouble, thermalConstants)
    DD_END
};
