#pragma once

#include "kmaC_MaterialOption.h"

/// Damping of the material in dynamics.
class kmaC_Damping : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Damping, kmaC_MaterialOption, 0x2380015, 1050, "Damping")
public:
    DD_FIELD(double, alpha, 0.0)       ///< mass-proportional factor, 1/time
    DD_FIELD(double, beta, 0.0)        ///< stiffness-proportional factor, time
    DD_FIELD(double, composite, 0.0)   ///< share of critical damping in composite modal damping
    DD_FIELD(double, structural, 0.0)  ///< structural factor, imaginary share of the stiffness
    DD_END
};
