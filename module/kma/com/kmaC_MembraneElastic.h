#pragma once

#include "kmaC_MaterialOption.h"

/// A gasket's elasticity in its plane.
class kmaC_MembraneElastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_MembraneElastic, kmaC_MaterialOption, 0x238005B, 203, "GasketMembraneElastic")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
