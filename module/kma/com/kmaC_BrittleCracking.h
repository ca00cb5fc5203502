#pragma once

#include "kmaC_BrittleFailure.h"
#include "kmaC_BrittleShear.h"
#include "kmaC_MaterialOption.h"

/// Brittle solids that crack in tension: the stress left after cracking. No material asks it for
/// its rules.
class kmaC_BrittleCracking : public kmaC_MaterialOption {
    DD_CLASS(kmaC_BrittleCracking, kmaC_MaterialOption, 0x2380007, 850, "BrittleCracking")
public:
    DD_ENUM(TypeEnm, STRAIN, DISPLACEMENT, GFI)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(TypeEnm, type, TypeEnm::STRAIN)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_BrittleShear, brittleShear)
    DD_OPTION(kmaC_BrittleFailure, brittleFailure)
    DD_END
};
