#pragma once

#include "kmaC_MaterialOption.h"

/// Friction on the third set of joints. Retired with kmaC_JointedMaterial.
class kmaC_ThirdDirection : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_ThirdDirection, kmaC_MaterialOption, 0x238004E, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
