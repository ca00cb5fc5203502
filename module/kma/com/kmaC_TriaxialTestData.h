#pragma once

#include "kmaC_MaterialOption.h"

/// Test data of triaxial compression, to which the exponential yield criterion is fitted. What is
/// set of its constants is kept, the rest fitted.
class kmaC_TriaxialTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_TriaxialTestData, kmaC_MaterialOption, 0x238004F, 203, "TriaxialTestData")
public:
    DD_FIELD(double, a, kmaC_NotSet)
    DD_FIELD(double, b, kmaC_NotSet)
    DD_FIELD(double, pt, kmaC_NotSet)  ///< hydrostatic tension strength
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
