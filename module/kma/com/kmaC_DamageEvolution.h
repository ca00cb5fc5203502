#pragma once

#include "kmaC_MaterialOption.h"

/// How damage grows once it has started, by the displacement or the energy that it takes.
class kmaC_DamageEvolution : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DamageEvolution, kmaC_MaterialOption, 0x2380086, 883, "DamageEvolution")
public:
    DD_ENUM(TypeEnm, DISPLACEMENT, ENERGY)
    DD_ENUM(DegradationEnm, MAXIMUM, MULTIPLICATIVE)
    DD_ENUM(MixedModeBehaviorEnm, MODE_INDEPENDENT, TABULAR, POWER_LAW, BK)
    DD_ENUM(ModeMixRatioEnm, ENERGY, TRACTION)
    DD_ENUM(SofteningEnm, LINEAR, EXPONENTIAL, TABULAR)

    DD_FIELD(TypeEnm, type, TypeEnm::DISPLACEMENT)
    DD_FIELD(DegradationEnm, degradation, DegradationEnm::MAXIMUM)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(MixedModeBehaviorEnm, mixedModeBehavior, MixedModeBehaviorEnm::MODE_INDEPENDENT)
    DD_FIELD(ModeMixRatioEnm, modeMixRatio, ModeMixRatioEnm::ENERGY)
    DD_FIELD(double, power, kmaC_NotSet)  ///< exponent of POWER_LAW and BK
    DD_FIELD(SofteningEnm, softening, SofteningEnm::LINEAR)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
