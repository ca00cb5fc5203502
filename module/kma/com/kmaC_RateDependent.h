#pragma once

#include "kmaC_MaterialOption.h"

/// How the yield stress grows with the strain rate.
class kmaC_RateDependent : public kmaC_MaterialOption {
    DD_CLASS(kmaC_RateDependent, kmaC_MaterialOption, 0x2380043, 203, "RateDependent")
public:
    DD_ENUM(TypeEnm, POWER_LAW, YIELD_RATIO, JOHNSON_COOK)

    DD_FIELD(TypeEnm, type, TypeEnm::POWER_LAW)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
