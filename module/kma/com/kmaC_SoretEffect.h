#pragma once

#include "kmaC_MaterialOption.h"

/// Diffusion driven by a gradient of temperature. The type table spells the name of this class
/// differently, which is kept.
class kmaC_SoretEffect : public kmaC_MaterialOption {
    DD_CLASS(kmaC_SoretEffect, kmaC_MaterialOption, 0x2380063, 203, "SoretEffect")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_END
};
