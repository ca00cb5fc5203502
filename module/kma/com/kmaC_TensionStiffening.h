#pragma once

#include "kmaC_MaterialOption.h"

/// The stress that cracked concrete still carries, against strain or opening.
class kmaC_TensionStiffening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_TensionStiffening, kmaC_MaterialOption, 0x238004D, 203, "TensionStiffening")
public:
    DD_ENUM(TypeEnm, DISPLACEMENT, STRAIN)

    DD_FIELD(TypeEnm, type, TypeEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
