#pragma once

#include "kmaC_AnnealTemperature.h"
#include "kmaC_CycledPlastic.h"
#include "kmaC_CyclicHardening.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_Ornl.h"
#include "kmaC_Potential.h"
#include "kmaC_RateDependent.h"

/// Plasticity of metals: the yield stress as it grows with plastic strain. One row of the table is
/// one point of the curve, yield stress first and plastic strain second.
class kmaC_Plastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Plastic, kmaC_MaterialOption, 0x238003C, 1107, "Plastic")
public:
    DD_ENUM(HardeningEnm, ISOTROPIC, KINEMATIC, COMBINED, JOHNSON_COOK, USER)
    DD_ENUM(DataTypeEnm, HALF_CYCLE, PARAMETERS, STABILIZED)

    DD_FIELD(HardeningEnm, hardening, HardeningEnm::ISOTROPIC)
    /// The curve depends on the strain rate, the third number of a row.
    DD_FIELD(bool, rate, false)
    DD_FIELD(DataTypeEnm, dataType, DataTypeEnm::HALF_CYCLE)
    DD_FIELD(bool, strainRangeDependency, false)
    DD_FIELD(int, numBackstresses, 1)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_RateDependent, rateDependent)
    DD_OPTION(kmaC_Potential, potential)
    DD_OPTION(kmaC_CyclicHardening, cyclicHardening)
    DD_OPTION(kmaC_Ornl, ornl)
    DD_OPTION(kmaC_CycledPlastic, cycledPlastic)
    DD_OPTION(kmaC_AnnealTemperature, annealTemperature)
    DD_END
};
