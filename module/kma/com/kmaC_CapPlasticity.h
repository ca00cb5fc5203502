#pragma once

#include "kmaC_CapCreepCohesion.h"
#include "kmaC_CapCreepConsolidation.h"
#include "kmaC_CapHardening.h"
#include "kmaC_MaterialOption.h"

/// Plasticity of soils with a cap that closes the yield surface under pressure, so that they
/// compact.
class kmaC_CapPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CapPlasticity, kmaC_MaterialOption, 0x238000C, 452, "CapPlasticity")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_CapCreepCohesion, capCreepCohesion)
    DD_OPTION(kmaC_CapCreepConsolidation, capCreepConsolidation)
    DD_OPTION(kmaC_CapHardening, capHardening)
    DD_END
};
