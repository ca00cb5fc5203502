#pragma once

#include "kmaC_MaterialOption.h"

/// The share of the inelastic work that becomes heat.
class kmaC_InelasticHeatFraction : public kmaC_MaterialOption {
    DD_CLASS(kmaC_InelasticHeatFraction, kmaC_MaterialOption, 0x2380031, 203,
             "InelasticHeatFraction")
public:
    DD_FIELD(double, fraction, 0.9)
    DD_END
};
