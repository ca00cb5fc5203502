#pragma once

#include "kmaC_MaterialOption.h"

/// The crush curve of a foam: yield stress in compression against plastic strain.
class kmaC_FoamHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_FoamHardening, kmaC_MaterialOption, 0x238002B, 203, "CrushableFoamHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
