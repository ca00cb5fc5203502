#pragma once

#include "kmaC_MaterialOption.h"

/// The yield stress of the material after it has been cycled, against plastic strain.
class kmaC_CycledPlastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CycledPlastic, kmaC_MaterialOption, 0x2380013, 203, "CycledPlastic")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
