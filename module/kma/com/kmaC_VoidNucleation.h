#pragma once

#include "kmaC_MaterialOption.h"

/// How plastic strain opens new voids in a porous metal.
class kmaC_VoidNucleation : public kmaC_MaterialOption {
    DD_CLASS(kmaC_VoidNucleation, kmaC_MaterialOption, 0x2380056, 203, "VoidNucleation")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
