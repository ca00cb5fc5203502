#pragma once

#include "kmaC_MaterialOption.h"

/// Solubility of a diffusing species in the material: links its concentration to its activity.
class kmaC_Solubility : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Solubility, kmaC_MaterialOption, 0x2380049, 203, "Solubility")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
