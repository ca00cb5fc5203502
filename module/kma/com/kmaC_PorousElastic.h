#pragma once

#include "kmaC_MaterialOption.h"

/// Elasticity of soils and other porous solids: the volumetric strain goes with the logarithm of
/// the pressure. The shear part has a constant modulus G or a constant Poisson's ratio.
class kmaC_PorousElastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_PorousElastic, kmaC_MaterialOption, 0x238003F, 203, "PorousElastic")
public:
    DD_ENUM(ShearEnm, G, POISSON)

    DD_FIELD(ShearEnm, shear, ShearEnm::POISSON)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
