#pragma once

#include "kmaC_MaterialOption.h"

/// Parameters of the constitutive model for stainless steels in nuclear design: how creep and
/// plastic strain act on each other's hardening.
class kmaC_Ornl : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Ornl, kmaC_MaterialOption, 0x2380038, 203, "Ornl")
public:
    DD_FIELD(double, a, 0.3)          ///< saturation rate for kinematic shift under creep
    DD_FIELD(double, h, kmaC_NotSet)  ///< rate of kinematic shift with creep strain
    DD_FIELD(bool, reset, false)
    DD_END
};
