#pragma once

#include "kmaC_FoamHardening.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_RateDependent.h"

/// Plasticity of foams that are crushed: cell walls buckle and the volume does not come back.
class kmaC_Foam : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Foam, kmaC_MaterialOption, 0x238002A, 203, "CrushableFoam")
public:
    DD_ENUM(HardeningEnm, VOLUMETRIC, ISOTROPIC)

    DD_FIELD(HardeningEnm, hardening, HardeningEnm::VOLUMETRIC)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION_AS(kmaC_FoamHardening, foamHardening, "crushableFoamHardening")
    DD_OPTION(kmaC_RateDependent, rateDependent)
    DD_END
};
