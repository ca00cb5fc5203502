#pragma once

#include "kmaC_MaterialOption.h"

/// The yield stress of cast iron in tension against plastic strain.
class kmaC_CastIronTensHard : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CastIronTensHard, kmaC_MaterialOption, 0x2380073, 205, "CastIronTensionHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
