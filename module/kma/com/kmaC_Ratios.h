#pragma once

#include "kmaC_MaterialOption.h"

/// Anisotropy of swelling: ratios of the swelling rates in the material's directions.
class kmaC_Ratios : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Ratios, kmaC_MaterialOption, 0x2380044, 203, "Ratios")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
