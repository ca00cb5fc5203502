#include <set>

#include "kmaC_OptionUnderTest.h"

// Options of concrete, cracking and damage, at the edges of their rules.

namespace kmaC_DamageOptions_test {

using kmaC_test::passes;
using kmaC_test::VerdictOf;

class DamageOptions : public kmaC_test::OptionTest {};

TEST_F(DamageOptions, DamageEvolutionAllowsFourteenTriples) {
    std::set<std::string> const allowed = {
        "DISPLACEMENT LINEAR MODE_INDEPENDENT",
        "DISPLACEMENT LINEAR TABULAR",
        "DISPLACEMENT EXPONENTIAL MODE_INDEPENDENT",
        "DISPLACEMENT EXPONENTIAL TABULAR",
        "DISPLACEMENT TABULAR MODE_INDEPENDENT",
        "DISPLACEMENT TABULAR TABULAR",
        "ENERGY LINEAR MODE_INDEPENDENT",
        "ENERGY LINEAR TABULAR",
        "ENERGY LINEAR POWER_LAW",
        "ENERGY LINEAR BK",
        "ENERGY EXPONENTIAL MODE_INDEPENDENT",
        "ENERGY EXPONENTIAL TABULAR",
        "ENERGY EXPONENTIAL POWER_LAW",
        "ENERGY EXPONENTIAL BK",
    };
    ASSERT_EQ(allowed.size(), 14u);
    int refused = 0;
    for (std::string const type : {"DISPLACEMENT", "ENERGY"}) {
        for (std::string const softening : {"LINEAR", "EXPONENTIAL", "TABULAR"}) {
            for (std::string const mode : {"MODE_INDEPENDENT", "TABULAR", "POWER_LAW", "BK"}) {
                bool const isAllowed = allowed.count(type + " " + softening + " " + mode) != 0;
                if (!isAllowed) ++refused;
                EXPECT_EQ(
                    VerdictOf("kmaC_DamageEvolution", "type=" + type + " softening=" + softening +
                                                          " mixedModeBehavior=" + mode),
                    isAllowed ? passes : 36)
                    << type << ' ' << softening << ' ' << mode;
            }
        }
    }
    EXPECT_EQ(refused, 10);
}

TEST_F(DamageOptions, DamageEvolutionRefusesWhatIsNoLiteral) {
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution", "type=#2"), 36);
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution", "softening=#3"), 36);
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution", "mixedModeBehavior=#4"), 36);
}

TEST_F(DamageOptions, DamageEvolutionChecksTheTripleFirst) {
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution"), passes);
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution", "dependencies=-1"), 0);
    EXPECT_EQ(VerdictOf("kmaC_DamageEvolution", "type=ENERGY softening=TABULAR dependencies=-1"),
              36);
    EXPECT_EQ(
        VerdictOf("kmaC_DamageEvolution",
                  "degradation=MULTIPLICATIVE modeMixRatio=TRACTION power=nan table=blankrow"),
        passes);
}

TEST_F(DamageOptions, DamageInitiationDoesNotReachItsEvolution) {
    std::string const forbidden = "damageEvolution.type=ENERGY damageEvolution.softening=TABULAR ";
    EXPECT_EQ(VerdictOf("kmaC_DamageInitiation", forbidden), passes);
    EXPECT_EQ(VerdictOf("kmaC_DamageInitiation", forbidden + "damageStabilization=new"), passes);
    EXPECT_EQ(VerdictOf("kmaC_DamageInitiation", "table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_DamageInitiation", "dependencies=-1"), 0);
}

TEST_F(DamageOptions, AMaterialDoesNotReachItsDamageCrackingOrFlowInOpenings) {
    kmaC_Material material;
    kmaC_DamageEvolution forbidden;
    forbidden.type = kmaC_DamageEvolution::TypeEnm::ENERGY;
    forbidden.softening = kmaC_DamageEvolution::SofteningEnm::TABULAR;
    auto* const initiation = new kmaC_DamageInitiation;
    initiation->dependencies = -1;
    initiation->damageEvolution = new kmaC_DamageEvolution(forbidden);
    EXPECT_THROW(initiation->AssertValid(), nex_TextException);
    material.ductileDamageInitiation = initiation;
    auto* const cracking = new kmaC_BrittleCracking;
    cracking->table = kmaC_MaterialTable(1, 2);
    EXPECT_THROW(cracking->AssertValid(), nex_TextException);
    material.brittleCracking = cracking;
    auto* const leakoff = new kmaC_FluidLeakoff;
    leakoff->table = kmaC_MaterialTable(1, 2);
    material.fluidLeakoff = leakoff;
    auto* const gapFlow = new kmaC_GapFlow;
    gapFlow->table = kmaC_MaterialTable(1, 2);
    material.gapFlow = gapFlow;
    EXPECT_NO_THROW(material.AssertValid());
    EXPECT_THROW(material.gapFlow.ConstGet().AssertValid(), nex_TextException);
    EXPECT_THROW(material.fluidLeakoff.ConstGet().AssertValid(), nex_TextException);
}

TEST_F(DamageOptions, BrittleCrackingLooksAtItsTableAlone) {
    EXPECT_EQ(VerdictOf("kmaC_BrittleCracking", "dependencies=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_BrittleCracking", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_BrittleCracking",
                        "brittleShear.dependencies=-1 brittleFailure.table=blankrow"),
              passes);
}

TEST_F(DamageOptions, ConcreteDamageMayHaveBlankRowsAndItsCurvesMayNot) {
    EXPECT_EQ(VerdictOf("kmaC_ConcreteTensionDamage", "table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_ConcreteCompressionDamage", "table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_ConcreteTensionStiffening", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_ConcreteCompressionHardening", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_ConcreteTensionDamage", "compressionRecovery=nan"), passes);
    EXPECT_EQ(VerdictOf("kmaC_ConcreteCompressionDamage", "tensionRecovery=-1"), passes);
    EXPECT_EQ(
        VerdictOf("kmaC_ConcreteDamagedPlasticity",
                  "concreteTensionDamage.table=blankrow concreteTensionDamage.dependencies=-1"),
        0);
}

}  // namespace kmaC_DamageOptions_test
