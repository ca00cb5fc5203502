#pragma once

#include "kmaC_MaterialOption.h"

/// Electrical conductivity: current density a unit of potential gradient.
class kmaC_ElectricalConductivity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ElectricalConductivity, kmaC_MaterialOption, 0x238001F, 203,
             "ElectricalConductivity")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
