#pragma once

#include "kmaC_MaterialOption.h"

/// The shear stiffness of a brittle solid across its cracks, against their opening.
class kmaC_BrittleShear : public kmaC_MaterialOption {
    DD_CLASS(kmaC_BrittleShear, kmaC_MaterialOption, 0x2380008, 203, "BrittleShear")
public:
    DD_ENUM(TypeEnm, RETENTION_FACTOR, POWER_LAW)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(TypeEnm, type, TypeEnm::RETENTION_FACTOR)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
