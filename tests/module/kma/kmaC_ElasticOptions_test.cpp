#include <climits>

#include "kmaC_OptionUnderTest.h"

// Elastic, hyperelastic and viscoelastic options and their test data, at the edges of their rules.

namespace kmaC_ElasticOptions_test {

using kmaC_test::Option;
using kmaC_test::passes;
using kmaC_test::VerdictOf;

class ElasticOptions : public kmaC_test::OptionTest {};

TEST_F(ElasticOptions, ElasticRefusesNoCompressionWithNoTension) {
    EXPECT_EQ(VerdictOf("kmaC_Elastic", "noCompression=true noTension=true"), 34);
    EXPECT_EQ(VerdictOf("kmaC_Elastic", "noCompression=true"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Elastic", "noTension=true"), passes);
    kmaC_Elastic elastic;
    elastic.noCompression = elastic.noTension = true;
    try {
        elastic.AssertValid();
        ADD_FAILURE();
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(),
                     "No compression and No tension are mutually exclusive. "
                     "Please unselect one of them.");
    }
}

TEST_F(ElasticOptions, ElasticAsksStrainBeforeStress) {
    EXPECT_EQ(VerdictOf("kmaC_Elastic", "failStress.dependencies=-1 failStrain.table=blankrow"),
              21);
    EXPECT_EQ(VerdictOf("kmaC_Elastic", "failStrain.dependencies=-1 failStress.table=blankrow"), 0);
}

TEST_F(ElasticOptions, DependenciesMayBeAsManyAsAnIntegerHolds) {
    EXPECT_EQ(VerdictOf("kmaC_FailStress", "dependencies=max"), passes);
    EXPECT_EQ(VerdictOf("kmaC_FailStress", "dependencies=min"), 0);
    EXPECT_EQ(VerdictOf("kmaC_FailStress", "dependencies=-1"), 0);
}

TEST_F(ElasticOptions, ANewHyperelasticPasses) {
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "n=-3 table=blankrow"), passes);
}

TEST_F(ElasticOptions, HyperelasticLimitsTheOrderOfAPolynomialByItsTestData) {
    std::string const polynomial = "type=POLYNOMIAL ";
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=2"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=3"), 18);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=3 testData=false"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=6 testData=false"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=7 testData=false"), 18);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", polynomial + "n=0"), 17);
}

TEST_F(ElasticOptions, HyperelasticLooksAtTheOrderForThreeTypesOnly) {
    for (char const* type : {"OGDEN", "POLYNOMIAL", "REDUCED_POLYNOMIAL"}) {
        std::string const ordered = std::string("testData=false type=") + type;
        EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", ordered + " n=0"), 17) << type;
        EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", ordered + " n=min"), 17) << type;
        EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", ordered + " n=1"), passes) << type;
        EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", ordered + " n=6"), passes) << type;
        EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", ordered + " n=max"), 18) << type;
    }
    for (char const* type : {"ARRUDA_BOYCE", "MARLOW", "MOONEY_RIVLIN", "NEO_HOOKE", "USER",
                             "VAN_DER_WAALS", "YEOH", "UNKNOWN"})
        for (char const* n : {" n=min", " n=0", " n=7", " n=max"})
            EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", std::string("type=") + type + n), passes)
                << type << n;
}

TEST_F(ElasticOptions, HyperelasticBetaIsFromZeroToOneOrNotSet) {
    std::string const type = "type=VAN_DER_WAALS beta=";
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "max"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "-0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "1.0000001"), 22);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "-0.0000001"), 22);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "min"), 22);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "inf"), 22);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", type + "nan"), 22);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "type=YEOH beta=2"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "type=VAN_DER_WAALS testData=false beta=2"), passes);
}

TEST_F(ElasticOptions, HyperelasticCountsPropertiesOfAUserPotentialOnly) {
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "type=USER properties=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "type=USER properties=-1"), 23);
    EXPECT_EQ(VerdictOf("kmaC_Hyperelastic", "type=OGDEN properties=-1"), passes);
}

TEST_F(ElasticOptions, HyperfoamPoissonNotSetSkipsBothLimits) {
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=max"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=0.5"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=0.51"), 3);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=-0.01"), 2);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=min"), 2);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=inf"), 3);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "poisson=nan"), 2);
}

TEST_F(ElasticOptions, HyperfoamOrderIsFromOneToSix) {
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "n=6"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "n=7"), 18);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "n=max"), 18);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "n=0"), 17);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "n=min"), 17);
}

TEST_F(ElasticOptions, HyperfoamReadsItsTableOnlyWithoutTestData) {
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Hyperfoam", "table=blankrow testData=true"), passes);
}

TEST_F(ElasticOptions, ViscoelasticTakesUpToThirteenTerms) {
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "nmax=13"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "nmax=14"), 5);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "nmax=1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "nmax=0"), 4);
    EXPECT_EQ(kmaC_Viscoelastic().nmax, 13);
}

TEST_F(ElasticOptions, ViscoelasticTractionExcludesAVolumetricPreloadAlone) {
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "type=TRACTION preload=VOLUMETRIC"), 35);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "type=TRACTION preload=UNIAXIAL_VOLUMETRIC"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "type=TRACTION preload=UNIAXIAL"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "type=TRACTION"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "preload=VOLUMETRIC"), passes);
}

TEST_F(ElasticOptions, ViscoelasticTablesMayBeginBlank) {
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "table=1x2 table[0,0]=0 table[0,1]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Viscoelastic", "volumetricTable=blankrow"), passes);
}

TEST_F(ElasticOptions, ANewMullinsEffectFails) {
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect"), 44);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=CONSTANTS table=2x2"), 44);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=CONSTANTS table=0x3"), 44);
}

TEST_F(ElasticOptions, MullinsEffectOfAUserNeedsAsManyCellsAsProperties) {
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=1"), 45);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=6 table=2x3"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=6 table=3x2"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=5 table=2x3"), 45);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=-6 table=2x3"), 45);
    // A blank row is as good as any.
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "definition=USER properties=4 table=blankrow"),
              passes);
}

TEST_F(ElasticOptions, MullinsEffectConstantsAreCheckedRowByRow) {
    std::string const three = "table=2x3 table[0,0]=2 table[1,0]=2 ";
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,0]=1"), 41);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,0]=1.0000001"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,1]=-0.1"), 40);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,1]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,2]=-0.1"), 39);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,2]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[1,1]=0 table[1,2]=-0"), 42);
    // The first row that fails decides, whatever the codes.
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[0,2]=-1 table[1,0]=0"), 39);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[0,0]=nan"), 41);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[0,1]=nan"), 40);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "table[0,2]=nan"), 39);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", three + "dependencies=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", "table=1x4 table[0,0]=2 table[0,3]=nan"), passes);
}

TEST_F(ElasticOptions, MullinsEffectNeedsOneTestOfAnyKind) {
    std::string const test = "definition=TEST_DATA ";
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test), 43);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test + "uniaxialTests=+kmaC_UniaxialTestData"),
              passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test + "biaxialTests=+kmaC_Density"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test + "planarTests=+kmaC_Gel"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test + "planarTests=+kmaC_Gel planarTests=none"), 43);
}

TEST_F(ElasticOptions, MullinsEffectAsksEveryElementByItsOwnClass) {
    std::string const test = "definition=TEST_DATA ";
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect", test + "uniaxialTests=+kmaC_Trs "
                                                     "uniaxialTests=+kmaC_Depvar "
                                                     "uniaxialTests.n=-1"),
              17);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect",
                        test + "planarTests=+kmaC_Depvar planarTests.n=-1 "
                               "uniaxialTests=+kmaC_Density uniaxialTests.dependencies=-1 "
                               "biaxialTests=+kmaC_Damping biaxialTests.composite=-1"),
              16);
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect",
                        test + "planarTests=+kmaC_Depvar planarTests.n=-1 "
                               "uniaxialTests=+kmaC_Density uniaxialTests.dependencies=-1"),
              0);
    // Another definition asks none of them.
    EXPECT_EQ(VerdictOf("kmaC_MullinsEffect",
                        "definition=USER uniaxialTests=+kmaC_Depvar uniaxialTests.n=-1"),
              passes);
}

TEST_F(ElasticOptions, MullinsEffectListsShareTheirElementsWithACopy) {
    kmaC_MullinsEffect effect;
    using Element = cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>;
    effect.uniaxialTests.Append(Element(new kmaC_UniaxialTestData));
    kmaC_MullinsEffect copy(effect);
    kmaC_MaterialOption const* const shared = effect.uniaxialTests.ConstGet(0).GetPtr();
    EXPECT_EQ(copy.uniaxialTests.ConstGet(0).GetPtr(), shared);
    static_cast<kmaC_UniaxialTestData&>(copy.uniaxialTests.Get(0).Get()).smoothing = 3;
    EXPECT_NE(copy.uniaxialTests.ConstGet(0).GetPtr(), shared);
    EXPECT_EQ(copy.uniaxialTests.ConstGet(0).ConstGet().DynTypeId(),
              kmaC_UniaxialTestData::TypeId());
    EXPECT_EQ(static_cast<kmaC_UniaxialTestData const&>(*shared).smoothing, INT_MAX);
}

TEST_F(ElasticOptions, SmoothingIsNotChecked) {
    for (char const* name : {"kmaC_UniaxialTestData", "kmaC_BiaxialTestData", "kmaC_PlanarTestData",
                             "kmaC_VolumetricTestData"}) {
        EXPECT_EQ(VerdictOf(name), passes) << name;
        EXPECT_EQ(VerdictOf(name, "smoothing=max"), passes) << name;
        EXPECT_EQ(VerdictOf(name, "smoothing=min dependencies=-1 table=blankrow"), passes) << name;
    }
    EXPECT_EQ(kmaC_UniaxialTestData().smoothing, 2147483647);
}

TEST_F(ElasticOptions, OnlyCombinedTestDataCheckTheirRows) {
    EXPECT_EQ(VerdictOf("kmaC_CombinedTestData", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_CombinedTestData", "volinf=nan shrinf=nan"), passes);
    for (char const* name : {"kmaC_ShearTestData", "kmaC_SimpleShearTestData",
                             "kmaC_TriaxialTestData", "kmaC_Hypoelastic", "kmaC_Trs"})
        EXPECT_EQ(VerdictOf(name, "table=blankrow"), passes) << name;
}

}  // namespace kmaC_ElasticOptions_test
