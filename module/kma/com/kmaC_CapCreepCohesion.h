#pragma once

#include "kmaC_MaterialOption.h"

/// Creep of a cap material in shear, along its cohesion mechanism.
class kmaC_CapCreepCohesion : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CapCreepCohesion, kmaC_MaterialOption, 0x238007E, 452, "CapCreepCohesion")
public:
    DD_ENUM(LawEnm, STRAIN, TIME, SINGHM, USER)

    DD_FIELD(LawEnm, law, LawEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
