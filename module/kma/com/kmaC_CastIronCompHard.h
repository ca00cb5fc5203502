#pragma once

#include "kmaC_MaterialOption.h"

/// The yield stress of cast iron in compression against plastic strain.
class kmaC_CastIronCompHard : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CastIronCompHard, kmaC_MaterialOption, 0x2380072, 205,
             "CastIronCompressionHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
