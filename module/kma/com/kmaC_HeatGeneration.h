#pragma once

#include "kmaC_MaterialOption.h"

/// A user's routine gives the heat generated in the volume. Its presence is all it says.
class kmaC_HeatGeneration : public kmaC_MaterialOption {
    DD_CLASS(kmaC_HeatGeneration, kmaC_MaterialOption, 0x238002D, 203, "HeatGeneration")
public:
    DD_END
};
