#pragma once

#include "kmaC_MaterialOption.h"

/// Creep of pressure-dependent materials.
class kmaC_DruckerPragerCreep : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DruckerPragerCreep, kmaC_MaterialOption, 0x238001C, 203, "DruckerPragerCreep")
public:
    DD_ENUM(LawEnm, STRAIN, TIME, SINGHM, USER)

    DD_FIELD(LawEnm, law, LawEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
