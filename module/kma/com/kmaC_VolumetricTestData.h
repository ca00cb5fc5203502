#pragma once

#include <climits>

#include "kmaC_MaterialOption.h"

/// Test data of volumetric compression: pressure against volume ratio, or the relaxation of the
/// bulk modulus over time.
class kmaC_VolumetricTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_VolumetricTestData, kmaC_MaterialOption, 0x2380057, 325, "VolumetricTestData")
public:
    DD_FIELD(double, volinf, kmaC_NotSet)  ///< long-term value of the normalised bulk response
    /// How many neighbours smooth a point; the largest integer means none given.
    DD_FIELD(int, smoothing, INT_MAX)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
