#pragma once

#include "kmaC_MaterialOption.h"

/// The stress after cracking in tension, against strain, opening, or by the fracture energy.
class kmaC_ConcreteTensionStiffening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ConcreteTensionStiffening, kmaC_MaterialOption, 0x2380079, 205,
             "ConcreteTensionStiffening")
public:
    DD_ENUM(TypeEnm, STRAIN, DISPLACEMENT, GFI)

    DD_FIELD(bool, rate, false)
    DD_FIELD(TypeEnm, type, TypeEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
