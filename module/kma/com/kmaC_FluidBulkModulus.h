#pragma once

#include "kmaC_MaterialOption.h"

/// Bulk modulus of a fluid in a cavity. Retired: no current class holds it, but databases of old
/// schemas do.
class kmaC_FluidBulkModulus : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_FluidBulkModulus, kmaC_MaterialOption, 0x2380027, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
