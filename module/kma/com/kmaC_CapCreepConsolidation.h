#pragma once

#include "kmaC_MaterialOption.h"

/// Creep of a cap material under pressure, along its consolidation mechanism.
class kmaC_CapCreepConsolidation : public kmaC_MaterialOption {
    DD_CLASS(kmaC_CapCreepConsolidation, kmaC_MaterialOption, 0x238007F, 452,
             "CapCreepConsolidation")
public:
    DD_ENUM(LawEnm, STRAIN, TIME, SINGHM, USER)

    DD_FIELD(LawEnm, law, LawEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
