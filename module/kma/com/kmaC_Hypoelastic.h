#pragma once

#include "kmaC_MaterialOption.h"

/// Elasticity in rate form: moduli that depend on the strain invariants, for small elastic strains.
class kmaC_Hypoelastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Hypoelastic, kmaC_MaterialOption, 0x2380030, 203, "Hypoelastic")
public:
    DD_FIELD(bool, user, false)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
