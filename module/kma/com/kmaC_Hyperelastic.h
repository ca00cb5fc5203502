#pragma once

#include "kmaC_BiaxialTestData.h"
#include "kmaC_Hysteresis.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_PlanarTestData.h"
#include "kmaC_UniaxialTestData.h"
#include "kmaC_VolumetricTestData.h"

/// Elasticity of rubbers at large strain: the stress follows from a strain energy potential, whose
/// coefficients are given in the table or fitted to test data.
class kmaC_Hyperelastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Hyperelastic, kmaC_MaterialOption, 0x238002E, 864, "Hyperelastic")
public:
    DD_ENUM(TypeEnm, ARRUDA_BOYCE, MARLOW, MOONEY_RIVLIN, NEO_HOOKE, OGDEN, POLYNOMIAL,
            REDUCED_POLYNOMIAL, USER, VAN_DER_WAALS, YEOH, UNKNOWN)
    DD_ENUM(ModuliTimeScaleEnm, INSTANTANEOUS, LONG_TERM)
    DD_ENUM(DeviatoricResponseEnm, UNIAXIAL, BIAXIAL, PLANAR)
    DD_ENUM(VolumetricResponseEnm, DEFAULT, VOLUMETRIC_DATA, POISSON_RATIO, LATERAL_NOMINAL_STRAIN)
    /// What scripts may give for beta in place of a number; no field holds it.
    DD_ENUM(BetaEnm, FITTED_VALUE)

    DD_FIELD(TypeEnm, type, TypeEnm::UNKNOWN)
    DD_FIELD(ModuliTimeScaleEnm, moduliTimeScale, ModuliTimeScaleEnm::LONG_TERM)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, n, 1)  ///< order of the potential
    /// Invariant mixture of VAN_DER_WAALS, 0 to 1; fitted when not set.
    DD_FIELD(double, beta, kmaC_NotSet)
    DD_FIELD(bool, testData, true)  ///< fit the coefficients; the table is not read then
    DD_FIELD(bool, compressible, false)
    DD_FIELD(int, properties, 0)  ///< how many constants a USER potential takes
    DD_FIELD(DeviatoricResponseEnm, deviatoricResponse, DeviatoricResponseEnm::UNIAXIAL)
    DD_FIELD(VolumetricResponseEnm, volumetricResponse, VolumetricResponseEnm::DEFAULT)
    DD_FIELD(double, poissonRatio, 0.0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_BiaxialTestData, biaxialTestData)
    DD_OPTION(kmaC_PlanarTestData, planarTestData)
    DD_OPTION(kmaC_UniaxialTestData, uniaxialTestData)
    DD_OPTION(kmaC_VolumetricTestData, volumetricTestData)
    DD_OPTION(kmaC_Hysteresis, hysteresis)
    DD_END
};
