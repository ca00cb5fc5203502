#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_PorousFailureCriteria.h"
#include "kmaC_VoidNucleation.h"

/// Plasticity of metals with a small share of voids, which grow under tension and weaken the metal.
class kmaC_PorousMetalPlasticity : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PorousMetalPlasticity, kmaC_MaterialOption, 0x2380041, 203,
             "PorousMetalPlasticity")
public:
    DD_FIELD(double, relativeDensity, kmaC_NotSet)  ///< solid share of the volume at the start
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_PorousFailureCriteria, porousFailureCriteria)
    DD_OPTION(kmaC_VoidNucleation, voidNucleation)
    DD_END
};
