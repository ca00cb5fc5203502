#pragma once

#include "kmaC_MaterialOption.h"

/// Bulk moduli of the grains and of the fluid of a porous medium.
class kmaC_PorousBulkModuli : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PorousBulkModuli, kmaC_MaterialOption, 0x238003E, 203, "PorousBulkModuli")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
