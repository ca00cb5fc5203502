#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_SaturationDependence.h"
#include "kmaC_VelocityDependence.h"

/// Flow of a fluid through the pores: velocity a unit of hydraulic gradient.
class kmaC_Permeability : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Permeability, kmaC_MaterialOption, 0x2380039, 404, "Permeability")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(double, specificWeight, 0.0)  ///< weight of the fluid a unit of volume
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_SaturationDependence, saturationDependence)
    DD_OPTION(kmaC_VelocityDependence, velocityDependence)
    DD_END
};
