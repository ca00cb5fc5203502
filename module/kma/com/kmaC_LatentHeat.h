#pragma once

#include "kmaC_MaterialOption.h"

/// Heat taken up or given off by a change of phase, and the temperatures between which it is.
class kmaC_LatentHeat : public kmaC_MaterialOption {
    DD_CLASS(kmaC_LatentHeat, kmaC_MaterialOption, 0x2380036, 203, "LatentHeat")
public:
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
