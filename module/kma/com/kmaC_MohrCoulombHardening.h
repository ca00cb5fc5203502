#pragma once

#include "kmaC_MaterialOption.h"

/// The cohesion of a soil or rock against plastic strain.
class kmaC_MohrCoulombHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_MohrCoulombHardening, kmaC_MaterialOption, 0x2380076, 205, "MohrCoulombHardening")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
