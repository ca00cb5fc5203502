#pragma once

#include "kmaC_MaterialOption.h"

/// Compaction of a porous solid under shock, down to its solid density.
class kmaC_EosCompaction : public kmaC_MaterialOption {
    DD_CLASS(kmaC_EosCompaction, kmaC_MaterialOption, 0x2380080, 850, "EosCompaction")
public:
    DD_FIELD(double, soundSpeed, 0.0)          ///< in the porous material
    DD_FIELD(double, porosity, 0.0)            ///< at the start
    DD_FIELD(double, pressure, 0.0)            ///< at which compaction starts
    DD_FIELD(double, compactionPressure, 0.0)  ///< at which all pores are closed
    DD_END
};
