#pragma once

#include "kmaC_CombinedTestData.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_ShearTestData.h"
#include "kmaC_Trs.h"
#include "kmaC_VolumetricTestData.h"

/// Linear viscoelasticity: stress that relaxes with time, as a Prony series, in the frequency
/// domain, or fitted to test data. The shear and the volumetric part have a table each.
class kmaC_Viscoelastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Viscoelastic, kmaC_MaterialOption, 0x2380055, 876, "Viscoelastic")
public:
    DD_ENUM(DomainEnm, FREQUENCY, TIME)
    DD_ENUM(FrequencyEnm, FORMULA, TABULAR, PRONY, CREEP_TEST_DATA, RELAXATION_TEST_DATA)
    DD_ENUM(TypeEnm, ISOTROPIC, TRACTION)
    DD_ENUM(PreloadEnm, NONE, UNIAXIAL, VOLUMETRIC, UNIAXIAL_VOLUMETRIC)
    DD_ENUM(TimeEnm, PRONY, CREEP_TEST_DATA, RELAXATION_TEST_DATA, FREQUENCY_DATA)

    DD_FIELD(DomainEnm, domain, DomainEnm::FREQUENCY)
    DD_FIELD(FrequencyEnm, frequency, FrequencyEnm::FORMULA)
    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPIC)
    DD_FIELD(PreloadEnm, preload, PreloadEnm::NONE)
    DD_FIELD(TimeEnm, time, TimeEnm::PRONY)
    DD_FIELD(double, errtol, 0.01)  ///< root-mean-square error at which the fit stops
    DD_FIELD(int, nmax, 13)         ///< most terms that the fit may take
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_FIELD(kmaC_MaterialTable, volumetricTable, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(kmaC_CombinedTestData, combinedTestData)
    DD_OPTION(kmaC_ShearTestData, shearTestData)
    DD_OPTION(kmaC_Trs, trs)
    DD_OPTION(kmaC_VolumetricTestData, volumetricTestData)
    DD_END
};
