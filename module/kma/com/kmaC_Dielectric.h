#pragma once

#include "kmaC_MaterialOption.h"

/// Dielectric permittivity: electrical displacement a unit of potential gradient.
class kmaC_Dielectric : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Dielectric, kmaC_MaterialOption, 0x2380019, 203, "Dielectric")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
