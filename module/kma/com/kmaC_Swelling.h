#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_Ratios.h"

/// Growth in volume over time, as under irradiation: the rate of volumetric strain.
class kmaC_Swelling : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Swelling, kmaC_MaterialOption, 0x238004C, 203, "Swelling")
public:
    DD_ENUM(LawEnm, INPUT, USER)

    DD_FIELD(LawEnm, law, LawEnm::INPUT)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(kmaC_Ratios, ratios)
    DD_END
};
