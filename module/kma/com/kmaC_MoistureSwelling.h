#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_Ratios.h"

/// Growth in volume of a porous solid as its saturation rises.
class kmaC_MoistureSwelling : public kmaC_MaterialOption {
    DD_CLASS(kmaC_MoistureSwelling, kmaC_MaterialOption, 0x2380037, 203, "MoistureSwelling")
public:
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(kmaC_Ratios, ratios)
    DD_END
};
