#pragma once

#include "kmaC_MaterialOption.h"

/// Specific heat.
class kmaC_SpecificHeat : public kmaC_MaterialOption {
    DD_CLASS(kmaC_SpecificHeat, kmaC_MaterialOption, 0x238004B, 203, "SpecificHeat")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
