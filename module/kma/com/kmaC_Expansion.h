#pragma once

#include "kmaC_MaterialOption.h"

/// Thermal expansion.
class kmaC_Expansion : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Expansion, kmaC_MaterialOption, 0x2380021, 435, "Expansion")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC, SHORT_FIBER)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(bool, userSubroutine, false)
    DD_FIELD(double, zero, 0.0)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
