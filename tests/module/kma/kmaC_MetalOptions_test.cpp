#include "kmaC_OptionUnderTest.h"

// Options of metals and of geomaterials, foams and cast iron, at the edges of their rules.

namespace kmaC_MetalOptions_test {

using kmaC_test::passes;
using kmaC_test::VerdictOf;

class MetalOptions : public kmaC_test::OptionTest {};

TEST_F(MetalOptions, PlasticCurveBeginsAtZeroStrainUnlessItIsNoCurve) {
    std::string const row = " table=1x2 table[0,0]=100 table[0,1]=0.2";
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=ISOTROPIC" + row), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=KINEMATIC" + row), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=COMBINED" + row), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=COMBINED dataType=STABILIZED" + row), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=COMBINED dataType=PARAMETERS" + row), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=JOHNSON_COOK" + row), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER" + row), passes);
    // The kind of data counts for combined hardening only.
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=ISOTROPIC dataType=PARAMETERS" + row), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=COMBINED dataType=#7" + row), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=#9" + row), passes);
}

TEST_F(MetalOptions, PlasticStrainAtFirstYieldIsExactlyZero) {
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=2x2 table[0,1]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=2x2 table[0,1]=-0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=2x2 table[0,1]=1e-300"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=2x2 table[0,1]=nan"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=2x2 table[1,1]=0"), 37);
}

TEST_F(MetalOptions, PlasticTableTooSmallForItsRulesFails) {
    EXPECT_EQ(VerdictOf("kmaC_Plastic"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=0x2"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=3x1"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=3x0"), 37);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "rate=true table=1x2 table[0,1]=0"), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER rate=true"), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER rate=true table=0x3"), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER rate=true table=4x2"), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=JOHNSON_COOK"), passes);
}

TEST_F(MetalOptions, PlasticWithRateNeedsOneStaticRow) {
    std::string const rows =
        "rate=true table=2x3 table[0,0]=100 table[0,1]=0 table[0,2]=1.5 "
        "table[1,0]=120 table[1,1]=0.1 table[1,2]=10 ";
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "table[0,2]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "table[1,2]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "table[1,2]=-0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "table[1,2]=nan"), 38);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "rate=false"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", rows + "hardening=USER"), 38);
    // With four columns it is still the third number of a row.
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "rate=true table=1x4 table[0,1]=0 table[0,3]=0"), 38);
    kmaC_Plastic plastic;
    plastic.hardening = kmaC_Plastic::HardeningEnm::USER;
    plastic.rate = true;
    try {
        plastic.AssertValid();
        ADD_FAILURE();
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(), " The static yield stress must be defined.");
    }
}

TEST_F(MetalOptions, PlasticOfAUserMayHaveBlankRows) {
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=JOHNSON_COOK table=blankrow"), 21);
    // A blank row is found before the cells are read.
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "table=1x2 table=blankrow"), 21);
}

TEST_F(MetalOptions, PorousFailureCriteriaPassAsTheyAreMade) {
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria"), passes);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "fraction=0"), 14);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "fraction=1e-300"), passes);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "fraction=max criticalFraction=max"), passes);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "criticalFraction=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "criticalFraction=-1e-300"), 15);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "fraction=nan"), 14);
    EXPECT_EQ(VerdictOf("kmaC_PorousFailureCriteria", "criticalFraction=nan"), 15);
}

TEST_F(MetalOptions, CreepChecksItsDependenciesBeforeItsSubOptions) {
    EXPECT_EQ(VerdictOf("kmaC_Creep", "dependencies=-1 potential.table=blankrow"), 0);
    EXPECT_EQ(VerdictOf("kmaC_Creep", "potential.table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Creep", "potential.dependencies=-1 table=blankrow"), 0);
}

TEST_F(MetalOptions, ViscousChecksItsTableBeforeItsSubOption) {
    EXPECT_EQ(VerdictOf("kmaC_Viscous", "table=blankrow potential.dependencies=-1"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Viscous", "potential.dependencies=-1"), 0);
}

TEST_F(MetalOptions, OrnlMayHaveAnyNumbers) {
    EXPECT_EQ(VerdictOf("kmaC_Ornl"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Ornl", "a=-1 h=nan"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER ornl.a=nan"), passes);
}

TEST_F(MetalOptions, PorousMetalAsksTheVoidsBeforeTheirFailure) {
    EXPECT_EQ(VerdictOf("kmaC_PorousMetalPlasticity",
                        "voidNucleation.dependencies=-1 porousFailureCriteria.fraction=0"),
              0);
    EXPECT_EQ(VerdictOf("kmaC_PorousMetalPlasticity", "porousFailureCriteria.fraction=0"), 14);
    EXPECT_EQ(VerdictOf("kmaC_PorousMetalPlasticity", "voidNucleation.table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_PorousMetalPlasticity", "relativeDensity=nan"), passes);
}

TEST_F(MetalOptions, MohrCoulombEccentricityIsAboveOneHalfUpToOne) {
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=max"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=0.5"), 33);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=0.51"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=1.01"), 33);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=nan"), 33);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "deviatoricEccentricity=inf"), 33);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "meridionalEccentricity=-1"), passes);
}

TEST_F(MetalOptions, MohrCoulombTableMayBeginBlank) {
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "table=2x2 table[0,0]=0 table[0,1]=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "table=2x2 table[1,0]=0 table[1,1]=0"), 21);
}

TEST_F(MetalOptions, MohrCoulombHardeningStaysUnseen) {
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulomb", "mohrCoulombHardening.dependencies=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_MohrCoulombHardening", "dependencies=-1"), 0);
}

TEST_F(MetalOptions, DruckerPragerEccentricityIsNotNegative) {
    EXPECT_EQ(VerdictOf("kmaC_DruckerPrager", "eccentricity=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_DruckerPrager", "eccentricity=-0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_DruckerPrager", "eccentricity=-0.1"), 6);
    EXPECT_EQ(VerdictOf("kmaC_DruckerPrager", "eccentricity=nan"), 6);
    EXPECT_EQ(VerdictOf("kmaC_DruckerPrager", "eccentricity=max"), passes);
}

TEST_F(MetalOptions, CastIronAsksCompressionBeforeTension) {
    EXPECT_EQ(VerdictOf("kmaC_CastIronPlasticity",
                        "castIronTensHard.dependencies=-1 castIronCompHard.table=blankrow"),
              21);
    EXPECT_EQ(VerdictOf("kmaC_CastIronPlasticity",
                        "castIronCompHard.dependencies=-1 castIronTensHard.table=blankrow"),
              0);
}

TEST_F(MetalOptions, ARateDependenceIsAskedByEveryOwner) {
    for (char const* owner : {"kmaC_DruckerPrager", "kmaC_Foam"})
        EXPECT_EQ(VerdictOf(owner, "rateDependent.dependencies=-1"), 0) << owner;
    EXPECT_EQ(VerdictOf("kmaC_Plastic", "hardening=USER rateDependent.dependencies=-1"), 0);
}

TEST_F(MetalOptions, SwellingTablesMayBeginBlank) {
    for (char const* name : {"kmaC_Swelling", "kmaC_MoistureSwelling"}) {
        EXPECT_EQ(VerdictOf(name, "table=1x1 table[0,0]=0"), passes) << name;
        EXPECT_EQ(VerdictOf(name, "table=2x1 table[1,0]=0"), 21) << name;
    }
}

}  // namespace kmaC_MetalOptions_test
