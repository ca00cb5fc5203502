#pragma once

#include "kmaC_MaterialOption.h"

/// What is left of the shear modulus as cracks in concrete open.
class kmaC_ShearRetention : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ShearRetention, kmaC_MaterialOption, 0x2380046, 203, "ShearRetention")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
