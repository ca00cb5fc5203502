#pragma once

#include "kmaC_MaterialOption.h"

/// The area or width on which a gasket bears, against its closure: turns forces into pressures.
class kmaC_ContactArea : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ContactArea, kmaC_MaterialOption, 0x238005E, 203, "ContactArea")
public:
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
