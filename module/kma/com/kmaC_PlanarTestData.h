#pragma once

#include <climits>

#include "kmaC_MaterialOption.h"

/// Test data of planar tension, also called pure shear: nominal stress against nominal strain.
class kmaC_PlanarTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PlanarTestData, kmaC_MaterialOption, 0x238003B, 324, "PlanarTestData")
public:
    /// How many neighbours smooth a point; the largest integer means none given.
    DD_FIELD(int, smoothing, INT_MAX)
    DD_FIELD(bool, lateralNominalStrain, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
