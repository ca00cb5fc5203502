#pragma once

#include "kmaC_MaterialOption.h"

/// Anisotropy of yield and creep: ratios of the yield stresses in the material's directions.
class kmaC_Potential : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Potential, kmaC_MaterialOption, 0x2380042, 203, "Potential")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
