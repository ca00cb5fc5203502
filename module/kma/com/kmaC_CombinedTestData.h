#pragma once

#include "kmaC_MaterialOption.h"

/// Test data of creep or relaxation in shear and volume at once, normalised, over time.
class kmaC_CombinedTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CombinedTestData, kmaC_MaterialOption, 0x238000F, 203, "CombinedTestData")
public:
    DD_FIELD(double, volinf, kmaC_NotSet)  ///< long-term value of the normalised bulk response
    DD_FIELD(double, shrinf, kmaC_NotSet)  ///< long-term value of the normalised shear response
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
