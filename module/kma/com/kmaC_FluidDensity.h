#pragma once

#include "kmaC_MaterialOption.h"

/// Density of a fluid in a cavity at one temperature and pressure. Retired: no current class holds
/// it, but databases of old schemas do.
class kmaC_FluidDensity : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_FluidDensity, kmaC_MaterialOption, 0x2380028, 203)
public:
    DD_FIELD_UNSCRIPTED(double, temperature, 0.0)
    DD_FIELD_UNSCRIPTED(double, pressure, 0.0)
    DD_FIELD_UNSCRIPTED(double, density, 0.0)
    DD_END
};
