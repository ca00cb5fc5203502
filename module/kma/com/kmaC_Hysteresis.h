#pragma once

#include "kmaC_MaterialOption.h"

/// The rate-dependent part of a rubber that follows different paths on loading and unloading.
class kmaC_Hysteresis : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Hysteresis, kmaC_MaterialOption, 0x238005F, 203, "Hysteresis")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
