#pragma once

#include "kmaC_MaterialOption.h"

/// The deviatoric part beside an equation of state: an elastic shear modulus or a viscosity.
class kmaC_EosShear : public kmaC_MaterialOption {
    DD_CLASS(kmaC_EosShear, kmaC_MaterialOption, 0x2380060, 203, "EosShear")
public:
    DD_ENUM(TypeEnm, ELASTIC, VISCOUS)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(TypeEnm, type, TypeEnm::ELASTIC)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
