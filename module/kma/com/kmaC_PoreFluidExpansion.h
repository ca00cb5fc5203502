#pragma once

#include "kmaC_MaterialOption.h"

/// Thermal expansion of the fluid in the pores.
class kmaC_PoreFluidExpansion : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PoreFluidExpansion, kmaC_MaterialOption, 0x238003D, 203, "PoreFluidExpansion")
public:
    DD_FIELD(double, zero, 0.0)  ///< reference temperature
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
