#pragma once

#include "kmaC_MaterialOption.h"

/// How the permeability falls with the velocity of the fluid in the pores.
class kmaC_VelocityDependence : public kmaC_MaterialOption {
    DD_CLASS(kmaC_VelocityDependence, kmaC_MaterialOption, 0x2380066, 203, "VelocityDependence")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
