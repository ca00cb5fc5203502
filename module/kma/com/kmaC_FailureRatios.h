#pragma once

#include "kmaC_MaterialOption.h"

/// The shape of the failure surface of concrete: ratios to its uniaxial compressive strength.
class kmaC_FailureRatios : public kmaC_MaterialOption {
    DD_CLASS(kmaC_FailureRatios, kmaC_MaterialOption, 0x2380025, 203, "FailureRatios")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
