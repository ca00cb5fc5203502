#pragma once

#include "kmaC_MaterialOption.h"

/// Diffusion driven by a gradient of pressure.
class kmaC_PressureEffect : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PressureEffect, kmaC_MaterialOption, 0x2380064, 203, "PressureEffect")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_END
};
