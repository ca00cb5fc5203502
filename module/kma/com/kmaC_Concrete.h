#pragma once

#include "kmaC_FailureRatios.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_ShearRetention.h"
#include "kmaC_TensionStiffening.h"

/// Concrete with smeared cracks: compressive stress against plastic strain.
class kmaC_Concrete : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Concrete, kmaC_MaterialOption, 0x2380010, 203, "Concrete")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_FailureRatios, failureRatios)
    DD_OPTION(kmaC_ShearRetention, shearRetention)
    DD_OPTION(kmaC_TensionStiffening, tensionStiffening)
    DD_END
};
