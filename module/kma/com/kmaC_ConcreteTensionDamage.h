#pragma once

#include "kmaC_MaterialOption.h"

/// The loss of stiffness in tension, from 0 to 1.
class kmaC_ConcreteTensionDamage : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ConcreteTensionDamage, kmaC_MaterialOption, 0x238007B, 205,
             "ConcreteTensionDamage")
public:
    DD_ENUM(TypeEnm, STRAIN, DISPLACEMENT)

    /// Share of the compressive stiffness regained when cracks close.
    DD_FIELD(double, compressionRecovery, 1.0)
    DD_FIELD(TypeEnm, type, TypeEnm::STRAIN)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
