#pragma once

#include "kmaC_ClayHardening.h"
#include "kmaC_MaterialOption.h"

/// Critical state plasticity of clays: hardening and softening by plastic change of volume.
class kmaC_ClayPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ClayPlasticity, kmaC_MaterialOption, 0x238000E, 203, "ClayPlasticity")
public:
    DD_ENUM(HardeningEnm, EXPONENTIAL, TABULAR)

    /// Void ratio axis intercept of the virgin consolidation line.
    DD_FIELD(double, intercept, kmaC_NotSet)
    DD_FIELD(HardeningEnm, hardening, HardeningEnm::EXPONENTIAL)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_ClayHardening, clayHardening)
    DD_END
};
