#pragma once

#include "kmaC_MaterialOption.h"

/// Strain-based failure limits of an elastic material.
class kmaC_FailStrain : public kmaC_MaterialOption {
    DD_CLASS(kmaC_FailStrain, kmaC_MaterialOption, 0x2380022, 203, "FailStrain")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
