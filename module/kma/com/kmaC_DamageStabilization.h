#pragma once

#include "kmaC_MaterialOption.h"

/// Viscosities that ease the convergence of softening fibre composites, one a failure mode. In
/// units of time.
class kmaC_DamageStabilization : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DamageStabilization, kmaC_MaterialOption, 0x2380087, 883, "DamageStabilization")
public:
    DD_FIELD(double, fiberTensileCoeff, 0.0)
    DD_FIELD(double, fiberCompressiveCoeff, 0.0)
    DD_FIELD(double, matrixTensileCoeff, 0.0)
    DD_FIELD(double, matrixCompressiveCoeff, 0.0)
    DD_END
};
