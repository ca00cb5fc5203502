#pragma once

#include "kmaC_MaterialOption.h"

/// Stress-based failure limits of an elastic material.
class kmaC_FailStress : public kmaC_MaterialOption {
    DD_CLASS(kmaC_FailStress, kmaC_MaterialOption, 0x2380023, 203, "FailStress")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
