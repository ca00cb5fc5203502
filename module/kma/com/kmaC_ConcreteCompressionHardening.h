#pragma once

#include "kmaC_MaterialOption.h"

/// The yield stress of concrete in compression against inelastic strain.
class kmaC_ConcreteCompressionHardening : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ConcreteCompressionHardening, kmaC_MaterialOption, 0x2380078, 205,
             "ConcreteCompressionHardening")
public:
    DD_FIELD(bool, rate, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
