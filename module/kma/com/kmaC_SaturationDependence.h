#pragma once

#include "kmaC_MaterialOption.h"

/// How the permeability falls with the saturation.
class kmaC_SaturationDependence : public kmaC_MaterialOption {
    DD_CLASS(kmaC_SaturationDependence, kmaC_MaterialOption, 0x2380065, 203, "SaturationDependence")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
