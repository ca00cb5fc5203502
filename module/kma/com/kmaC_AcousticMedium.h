#pragma once

#include "kmaC_MaterialOption.h"

/// A medium that carries sound: its bulk modulus and, if wanted, its volumetric drag.
class kmaC_AcousticMedium : public kmaC_MaterialOption {
    DD_CLASS(kmaC_AcousticMedium, kmaC_MaterialOption, 0x2380004, 203, "AcousticMedium")
public:
    DD_FIELD(bool, acousticVolumetricDrag, false)  ///< the second table holds data
    DD_FIELD(bool, temperatureDependencyB, false)
    DD_FIELD(bool, temperatureDependencyV, false)
    DD_FIELD(int, dependenciesB, 0)  ///< of the bulk modulus
    DD_FIELD(int, dependenciesV, 0)  ///< of the volumetric drag
    DD_FIELD(kmaC_MaterialTable, bulkTable)
    DD_FIELD(kmaC_MaterialTable, volumetricTable)
    DD_END
};
