#pragma once

#include "kmaC_BiaxialTestData.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_PlanarTestData.h"
#include "kmaC_SimpleShearTestData.h"
#include "kmaC_UniaxialTestData.h"
#include "kmaC_VolumetricTestData.h"

/// Elasticity of highly compressible foams at large strain: a strain energy potential of order n,
/// with coefficients in the table or fitted to test data.
class kmaC_Hyperfoam : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Hyperfoam, kmaC_MaterialOption, 0x238002F, 864, "Hyperfoam")
public:
    DD_ENUM(ModuliEnm, INSTANTANEOUS, LONG_TERM)

    DD_FIELD(bool, testData, false)
    /// Effective Poisson's ratio, 0 to 0.5, one for all terms.
    DD_FIELD(double, poisson, kmaC_NotSet)
    DD_FIELD(int, n, 1)  ///< order of the potential
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(ModuliEnm, moduli, ModuliEnm::LONG_TERM)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_OPTION(kmaC_BiaxialTestData, biaxialTestData)
    DD_OPTION(kmaC_VolumetricTestData, volumetricTestData)
    DD_OPTION(kmaC_PlanarTestData, planarTestData)
    DD_OPTION(kmaC_SimpleShearTestData, simpleShearTestData)
    DD_OPTION(kmaC_UniaxialTestData, uniaxialTestData)
    DD_END
};
