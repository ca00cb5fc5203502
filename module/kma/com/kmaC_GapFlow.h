#pragma once

#include "kmaC_MaterialOption.h"

/// Flow of a fluid along an opening crack. No material asks it for its rules.
class kmaC_GapFlow : public kmaC_MaterialOption {
    DD_CLASS(kmaC_GapFlow, kmaC_MaterialOption, 0x2380084, 849, "GapFlow")
public:
    DD_ENUM(TypeEnm, NEWTONIAN, POWER_LAW)

    DD_FIELD(double, kmax, kmaC_NotSet)  ///< greatest permeability of the gap
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(TypeEnm, type, TypeEnm::NEWTONIAN)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
