#pragma once

#include "kmaC_MaterialOption.h"

/// Failure of the bulk rock between its joints. Retired with kmaC_JointedMaterial.
class kmaC_BulkFailure : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_BulkFailure, kmaC_MaterialOption, 0x2380009, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
