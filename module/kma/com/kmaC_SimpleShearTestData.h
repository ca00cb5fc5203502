#pragma once

#include "kmaC_MaterialOption.h"

/// Test data of simple shear: shear stress against shear strain.
class kmaC_SimpleShearTestData : public kmaC_MaterialOption {
    DD_CLASS(kmaC_SimpleShearTestData, kmaC_MaterialOption, 0x2380048, 203, "SimpleShearTestData")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
