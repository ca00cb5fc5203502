#pragma once

#include "kmaC_MaterialOption.h"

/// The share of the electrical energy that becomes heat.
class kmaC_JouleHeatFraction : public kmaC_MaterialOption {
    DD_CLASS(kmaC_JouleHeatFraction, kmaC_MaterialOption, 0x2380034, 203, "JouleHeatFraction")
public:
    DD_FIELD(double, fraction, 1.0)
    DD_END
};
