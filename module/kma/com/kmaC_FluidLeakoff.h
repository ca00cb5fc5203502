#pragma once

#include "kmaC_MaterialOption.h"

/// Fluid lost through the faces of an opening crack into the medium around it. No material asks it
/// for its rules.
class kmaC_FluidLeakoff : public kmaC_MaterialOption {
    DD_CLASS(kmaC_FluidLeakoff, kmaC_MaterialOption, 0x2380083, 849, "FluidLeakoff")
public:
    DD_ENUM(TypeEnm, COEFFICIENTS, USER)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(TypeEnm, type, TypeEnm::COEFFICIENTS)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
