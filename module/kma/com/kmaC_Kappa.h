#pragma once

#include "kmaC_MaterialOption.h"

/// Diffusion driven by a gradient of temperature or pressure, as one option. Retired: no
/// class of any schema holds it.
class kmaC_Kappa : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_Kappa, kmaC_MaterialOption, 0x2380035, 203)
public:
    DD_ENUM(TypeEnm, TEMPERATURE, PRESSURE)

    DD_FIELD_UNSCRIPTED(bool, temperatureDependency, false)
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_FIELD_UNSCRIPTED(TypeEnm, type, TypeEnm::TEMPERATURE)
    DD_FIELD_UNSCRIPTED(kmaC_MaterialTable, table)
    DD_END
};
