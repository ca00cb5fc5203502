#pragma once

#include "kmaC_MaterialOption.h"

/// Shear stiffness left in open joints. Retired with kmaC_JointedMaterial.
class kmaC_JointShearRetention : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_JointShearRetention, kmaC_MaterialOption, 0x2380032, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
