#pragma once

#include "kmaC_MaterialOption.h"

/// The consolidation curve of a clay: pressure at yield against volumetric plastic strain.
class kmaC_ClayHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ClayHardening, kmaC_MaterialOption, 0x238000D, 203, "ClayHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
