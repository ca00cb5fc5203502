#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_PressureEffect.h"
#include "kmaC_SoretEffect.h"

/// Diffusion of a species through the material: flux a unit of gradient of its activity.
class kmaC_Diffusivity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Diffusivity, kmaC_MaterialOption, 0x238001A, 203, "Diffusivity")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC)
    DD_ENUM(LawEnm, GENERAL, FICK)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(LawEnm, law, LawEnm::GENERAL)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_PressureEffect, pressureEffect)
    DD_OPTION(kmaC_SoretEffect, soretEffect)
    DD_END
};
