#pragma once

#include "kmaC_MaterialOption.h"

/// Pore pressure against saturation while a porous medium takes up fluid, and while it loses it.
class kmaC_Sorption : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Sorption, kmaC_MaterialOption, 0x238004A, 203, "Sorption")
public:
    DD_ENUM(LawAbsorptionEnm, LOG, TABULAR)
    DD_ENUM(LawExsorptionEnm, LOG, TABULAR)

    DD_FIELD(LawAbsorptionEnm, lawAbsorption, LawAbsorptionEnm::TABULAR)
    DD_FIELD(bool, exsorption, false)  ///< the two curves differ
    DD_FIELD(LawExsorptionEnm, lawExsorption, LawExsorptionEnm::TABULAR)
    DD_FIELD(double, scanning, 0.0)  ///< slope of the lines between the two curves
    DD_FIELD(kmaC_MaterialTable, absorptionTable)
    DD_FIELD(kmaC_MaterialTable, exsorptionTable)
    DD_END
};
