#pragma once

#include "kmaC_MaterialOption.h"

/// Volumetric drag of an acoustic medium. Retired: no class of any schema holds it.
class kmaC_AcousticVolumetricDrag : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_AcousticVolumetricDrag, kmaC_MaterialOption, 0x2380005, 203)
public:
    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
