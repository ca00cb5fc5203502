#pragma once

#include "kmaC_MaterialOption.h"

/// The yield stress against plastic strain in the one test that the data come from.
class kmaC_DruckerPragerHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DruckerPragerHardening, kmaC_MaterialOption, 0x238001D, 203,
             "DruckerPragerHardening")
public:
    DD_ENUM(TypeEnm, COMPRESSION, TENSION, SHEAR)

    DD_FIELD(TypeEnm, type, TypeEnm::COMPRESSION)
    DD_FIELD(bool, rate, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
