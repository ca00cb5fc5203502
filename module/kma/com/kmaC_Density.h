#pragma once

#include "kmaC_MaterialOption.h"

/// Mass density.
class kmaC_Density : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Density, kmaC_MaterialOption, 0x2380017, 203, "Density")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_END
};
