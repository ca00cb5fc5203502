#pragma once

#include "kmaC_FailStrain.h"
#include "kmaC_FailStress.h"
#include "kmaC_MaterialOption.h"

/// Linear elasticity, with optional failure limits.
class kmaC_Elastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Elastic, kmaC_MaterialOption, 0x238001E, 203, "Elastic")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC, ANISOTROPIC, ENGINEERING_CONSTANTS, LAMINA, TRACTION,
            COUPLED_TRACTION, SHORT_FIBER)
    DD_ENUM(ModuliEnm, INSTANTANEOUS, LONG_TERM)

    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(bool, noCompression, false)
    DD_FIELD(bool, noTension, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(ModuliEnm, moduli, ModuliEnm::LONG_TERM)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_FailStress, failStress)
    DD_OPTION(kmaC_FailStrain, failStrain)
    DD_END
};
