#pragma once

#include "kmaC_DetonationPoint.h"
#include "kmaC_EosCompaction.h"
#include "kmaC_EosShear.h"
#include "kmaC_MaterialOption.h"

/// Equation of state: pressure as a function of density and internal energy, for shocks, explosives
/// and gases.
class kmaC_Eos : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Eos, kmaC_MaterialOption, 0x2380020, 850, "Eos")
public:
    DD_ENUM(TypeEnm, USUP, JWL, IDEALGAS, TABULAR)

    DD_FIELD(TypeEnm, type, TypeEnm::IDEALGAS)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_DetonationPoint, detonationPoint)
    DD_OPTION(kmaC_EosShear, eosShear)
    DD_OPTION(kmaC_EosCompaction, eosCompaction)
    DD_END
};
