#pragma once

#include "kmaC_MaterialOption.h"

/// Friction on the first set of joints. Retired with kmaC_JointedMaterial.
class kmaC_FirstDirection : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_FirstDirection, kmaC_MaterialOption, 0x2380026, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
