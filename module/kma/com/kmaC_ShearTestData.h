#pragma once

#include "kmaC_MaterialOption.h"

/// Test data of creep or relaxation in shear, normalised, over time.
class kmaC_ShearTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ShearTestData, kmaC_MaterialOption, 0x2380047, 203, "ShearTestData")
public:
    DD_FIELD(double, shrinf, kmaC_NotSet)  ///< long-term value of the normalised shear response
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
