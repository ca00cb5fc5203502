#pragma once

#include "kmaC_CastIronCompHard.h"
#include "kmaC_CastIronTensHard.h"
#include "kmaC_MaterialOption.h"

/// Plasticity of grey cast iron, which yields at different stresses in tension and compression.
class kmaC_CastIronPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CastIronPlasticity, kmaC_MaterialOption, 0x2380074, 205, "CastIronPlasticity")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION_AS(kmaC_CastIronTensHard, castIronTensHard, "castIronTensionHardening")
    DD_OPTION_AS(kmaC_CastIronCompHard, castIronCompHard, "castIronCompressionHardening")
    DD_END
};
