#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_Ornl.h"
#include "kmaC_Potential.h"

/// Creep of metals: the rate of inelastic strain under stress, by strain or time hardening.
class kmaC_Creep : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Creep, kmaC_MaterialOption, 0x2380012, 203, "Creep")
public:
    DD_ENUM(LawEnm, STRAIN, TIME, HYPERBOLIC_SINE, USER)

    DD_FIELD(LawEnm, law, LawEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_Ornl, ornl)
    DD_OPTION(kmaC_Potential, potential)
    DD_END
};
