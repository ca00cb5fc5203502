#pragma once

#include "kmaC_MaterialOption.h"

/// How tables are resampled into even steps, so that look-ups during an analysis are fast.
class kmaC_Regularization : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Regularization, kmaC_MaterialOption, 0x2380062, 404, "Regularization")
public:
    DD_ENUM(StrainRateRegularizationEnm, LOGARITHMIC, LINEAR)

    DD_FIELD(double, rtol, 0.03)  ///< greatest relative error of the resampled table
    DD_FIELD(StrainRateRegularizationEnm, strainRateRegularization,
             StrainRateRegularizationEnm::LOGARITHMIC)
    DD_END
};
