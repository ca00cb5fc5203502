#pragma once

#include "kmaC_MaterialOption.h"

/// The position of the cap: pressure at yield against volumetric plastic strain.
class kmaC_CapHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CapHardening, kmaC_MaterialOption, 0x238000B, 203, "CapHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
