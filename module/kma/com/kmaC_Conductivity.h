#pragma once

#include "kmaC_MaterialOption.h"

/// Thermal conductivity: heat flux a unit of temperature gradient.
class kmaC_Conductivity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Conductivity, kmaC_MaterialOption, 0x2380011, 203, "Conductivity")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_END
};
