#pragma once

#include "kmaC_MaterialOption.h"

/// The void fractions at which a porous metal starts to fail and has failed.
class kmaC_PorousFailureCriteria : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PorousFailureCriteria, kmaC_MaterialOption, 0x2380040, 203,
             "PorousFailureCriteria")
public:
    DD_FIELD(double, fraction, 1.0)          ///< void volume fraction at total failure
    DD_FIELD(double, criticalFraction, 1.0)  ///< void volume fraction at which voids join
    DD_END
};
