#pragma once

#include "kmaC_DruckerPragerCreep.h"
#include "kmaC_DruckerPragerHardening.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_RateDependent.h"
#include "kmaC_TriaxialTestData.h"

/// Plasticity of soils, rocks and polymers, whose yield stress grows with pressure.
class kmaC_DruckerPrager : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DruckerPrager, kmaC_MaterialOption, 0x238001B, 203, "DruckerPrager")
public:
    DD_ENUM(ShearCriterionEnm, LINEAR, HYPERBOLIC, EXPONENTIAL)

    DD_FIELD(ShearCriterionEnm, shearCriterion, ShearCriterionEnm::LINEAR)
    DD_FIELD(double, eccentricity, 0.1)  ///< how fast the flow potential nears its asymptote
    DD_FIELD(bool, testData, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_DruckerPragerCreep, druckerPragerCreep)
    DD_OPTION(kmaC_DruckerPragerHardening, druckerPragerHardening)
    DD_OPTION(kmaC_RateDependent, rateDependent)
    DD_OPTION(kmaC_TriaxialTestData, triaxialTestData)
    DD_END
};
