#pragma once

#include "kmaC_MaterialOption.h"

/// Swelling of gel particles in a partially saturated porous medium.
class kmaC_Gel : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Gel, kmaC_MaterialOption, 0x238002C, 203, "Gel")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
