#pragma once

#include "kmaC_MaterialOption.h"

/// Plasticity as nonlinear elasticity: stress and strain by one power law from the start, without
/// unloading. For fracture studies of ductile metals.
class kmaC_DeformationPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DeformationPlasticity, kmaC_MaterialOption, 0x2380016, 203,
             "DeformationPlasticity")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
