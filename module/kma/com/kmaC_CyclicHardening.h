#pragma once

#include "kmaC_MaterialOption.h"

/// The growth of the yield surface under cyclic loading, as a curve or as parameters.
class kmaC_CyclicHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CyclicHardening, kmaC_MaterialOption, 0x2380014, 203, "CyclicHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(bool, parameters, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
