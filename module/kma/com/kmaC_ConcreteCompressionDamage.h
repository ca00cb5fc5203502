#pragma once

#include "kmaC_MaterialOption.h"

/// The loss of stiffness in compression, from 0 to 1.
class kmaC_ConcreteCompressionDamage : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ConcreteCompressionDamage, kmaC_MaterialOption, 0x238007A, 205,
             "ConcreteCompressionDamage")
public:
    /// Share of the tensile stiffness regained on load reversal.
    DD_FIELD(double, tensionRecovery, 0.0)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
