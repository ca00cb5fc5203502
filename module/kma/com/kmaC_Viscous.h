#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_Potential.h"

/// The viscous branch of a material with an elastic-plastic and a viscous part: its creep law.
class kmaC_Viscous : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Viscous, kmaC_MaterialOption, 0x2380070, 438, "Viscous")
public:
    DD_ENUM(LawEnm, STRAIN, TIME, USER)

    DD_FIELD(LawEnm, law, LawEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_Potential, potential)
    DD_END
};
