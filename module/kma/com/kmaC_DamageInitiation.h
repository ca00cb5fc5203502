#pragma once

#include "kmaC_DamageEvolution.h"
#include "kmaC_DamageStabilization.h"
#include "kmaC_MaterialOption.h"

/// The state at which damage starts. One class serves twelve criteria: which one it is depends on
/// the member of the material that holds it, and every field is stored for each of them. No
/// material asks it for its rules.
class kmaC_DamageInitiation : public kmaC_MaterialOption {
    DD_CLASS(kmaC_DamageInitiation, kmaC_MaterialOption, 0x2380085, 883, "DamageInitiation")
public:
    DD_ENUM(DefinitionEnm, FLD, MSFLD)

    DD_FIELD(DefinitionEnm, definition, DefinitionEnm::MSFLD)
    DD_FIELD(double, feq, 10.0)            ///< limit on the equivalent plastic strain rate ratio
    DD_FIELD(double, fnn, 10.0)            ///< limit on the strain rate ratio normal to the groove
    DD_FIELD(double, fnt, 10.0)            ///< limit on the strain rate ratio along the groove
    DD_FIELD(int, frequency, 1)            ///< increments between evaluations
    DD_FIELD(double, ks, 0.0)              ///< weight of the pressure in the shear criterion
    DD_FIELD(int, numberImperfections, 4)  ///< groove orientations tried
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(double, alpha, 0.0)  ///< weight of the shear in the fibre tension criterion
    DD_FIELD(double, omega, 0.1)  ///< how much of the strain rate of the past counts
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_DamageEvolution, damageEvolution)
    DD_OPTION(kmaC_DamageStabilization, damageStabilization)
    DD_END
};
