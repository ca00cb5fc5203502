#include "kmaC_OptionUnderTest.h"

// Thermal, electrical, transport, acoustic, gasket and user options, at the edges of their rules.

namespace kmaC_TransportOptions_test {

using kmaC_test::passes;
using kmaC_test::VerdictOf;

class TransportOptions : public kmaC_test::OptionTest {};

TEST_F(TransportOptions, HeatFractionsShareTheTextOfAVoidFraction) {
    EXPECT_EQ(kmaC_InelasticHeatFraction().fraction, 0.9);
    EXPECT_EQ(kmaC_JouleHeatFraction().fraction, 1.0);
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=-0.1"), 14);
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=1.5"), 20);
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=nan"), 14);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=-0.1"), 14);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=1.5"), passes);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=nan"), 14);
}

TEST_F(TransportOptions, AFractionThatIsNotSetIsStillAboveOne) {
    EXPECT_EQ(VerdictOf("kmaC_InelasticHeatFraction", "fraction=max"), 20);
    EXPECT_EQ(VerdictOf("kmaC_JouleHeatFraction", "fraction=max"), passes);
}

TEST_F(TransportOptions, TablesThatMayBeginBlank) {
    for (char const* name : {"kmaC_Density", "kmaC_SoretEffect", "kmaC_PressureEffect",
                             "kmaC_Conductivity", "kmaC_DetonationPoint"}) {
        EXPECT_EQ(VerdictOf(name, "table=2x2 table[0,0]=0 table[0,1]=-0"), passes) << name;
        EXPECT_EQ(VerdictOf(name, "table=2x2 table[1,0]=0 table[1,1]=-0"), 21) << name;
    }
    for (char const* name : {"kmaC_SpecificHeat", "kmaC_ElectricalConductivity", "kmaC_LatentHeat",
                             "kmaC_Dielectric", "kmaC_PoreFluidExpansion"})
        EXPECT_EQ(VerdictOf(name, "table=1x2 table[0,0]=0 table[0,1]=0"), 21) << name;
}

TEST_F(TransportOptions, ARowThatHoldsANaNIsNotBlank) {
    EXPECT_EQ(VerdictOf("kmaC_SpecificHeat", "table=1x2 table[0,0]=0 table[0,1]=nan"), passes);
    EXPECT_EQ(VerdictOf("kmaC_SpecificHeat", "table=3x0"), passes);
}

TEST_F(TransportOptions, TablesThatAreNotAskedMayHaveBlankRows) {
    for (char const* name : {"kmaC_Diffusivity", "kmaC_Expansion", "kmaC_Solubility", "kmaC_Gel",
                             "kmaC_Piezoelectric"})
        EXPECT_EQ(VerdictOf(name, "table=blankrow"), passes) << name;
}

TEST_F(TransportOptions, SorptionAsksTheSecondCurveOnlyIfItDiffers) {
    EXPECT_EQ(VerdictOf("kmaC_Sorption", "exsorptionTable=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Sorption", "exsorptionTable=blankrow exsorption=true"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Sorption", "absorptionTable=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Sorption", "scanning=nan"), passes);
}

TEST_F(TransportOptions, FluidLeakoffOfAUserIgnoresItsTable) {
    EXPECT_EQ(VerdictOf("kmaC_FluidLeakoff", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_FluidLeakoff", "type=USER table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_FluidLeakoff", "dependencies=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_GapFlow", "dependencies=-1 kmax=nan"), passes);
}

TEST_F(TransportOptions, DiffusivityAsksTheTemperatureEffectFirst) {
    EXPECT_EQ(
        VerdictOf("kmaC_Diffusivity", "pressureEffect.dependencies=-1 soretEffect.table=blankrow"),
        21);
    EXPECT_EQ(
        VerdictOf("kmaC_Diffusivity", "soretEffect.dependencies=-1 pressureEffect.table=blankrow"),
        0);
}

TEST_F(TransportOptions, AcousticMediumAsksTheDragOnlyIfThereIsOne) {
    EXPECT_EQ(VerdictOf("kmaC_AcousticMedium", "volumetricTable=blankrow"), passes);
    EXPECT_EQ(
        VerdictOf("kmaC_AcousticMedium", "volumetricTable=blankrow acousticVolumetricDrag=true"),
        21);
    EXPECT_EQ(VerdictOf("kmaC_AcousticMedium", "bulkTable=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_AcousticMedium", "dependenciesB=-1"), 0);
    EXPECT_EQ(VerdictOf("kmaC_AcousticMedium", "dependenciesV=-1"), 0);
    // A sum would hide one of them.
    EXPECT_EQ(VerdictOf("kmaC_AcousticMedium", "dependenciesV=-1 dependenciesB=5"), 0);
}

TEST_F(TransportOptions, EquationsOfStateInATableMayHaveBlankRows) {
    EXPECT_EQ(VerdictOf("kmaC_Eos", "type=TABULAR table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Eos", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_Eos", "type=TABULAR eosShear.dependencies=-1"), 0);
    EXPECT_EQ(VerdictOf("kmaC_Eos",
                        "type=TABULAR detonationPoint.table=blankrow eosShear.dependencies=-1"),
              0);
    EXPECT_EQ(VerdictOf("kmaC_EosCompaction",
                        "soundSpeed=nan porosity=-1 pressure=inf compactionPressure=min"),
              passes);
}

class GasketThickness : public kmaC_test::OptionTest {
protected:
    static int With(std::string const& settings) {
        return VerdictOf("kmaC_ThicknessBehavior", "table=3x2 table[0,0]=0 " + settings);
    }
};

TEST_F(GasketThickness, ANewOneHasTooFewRows) {
    EXPECT_EQ(VerdictOf("kmaC_ThicknessBehavior"), 29);
    EXPECT_EQ(VerdictOf("kmaC_ThicknessBehavior", "type=DAMAGE"), 30);
    EXPECT_EQ(With(""), passes);
}

TEST_F(GasketThickness, NeedsThreeRowsOrTwo) {
    EXPECT_EQ(With("table=2x2 table[0,0]=0"), 29);
    EXPECT_EQ(With("type=DAMAGE table=2x2 table[0,0]=0"), passes);
    EXPECT_EQ(With("type=DAMAGE table=1x2 table[0,0]=0"), 30);
    EXPECT_EQ(With("type=#5 table=1x2 table[0,0]=0"), passes);
    EXPECT_EQ(With("type=#5 table=0x2"), 31);
}

TEST_F(GasketThickness, LoadingStartsAtZero) {
    EXPECT_EQ(With("table[0,0]=0.1"), 31);
    EXPECT_EQ(With("table[0,0]=-0"), passes);
    EXPECT_EQ(With("table[0,0]=nan"), 31);
    EXPECT_EQ(With("table=3x0"), 31);
}

TEST_F(GasketThickness, YieldOnsetFailsInTheWordsOfItsMethod) {
    EXPECT_EQ(With("yieldOnset=0 yieldOnsetMethod=CLOSURE_VALUE"), 25);
    EXPECT_EQ(With("yieldOnset=0 yieldOnsetMethod=RELATIVE_SLOPE_DROP"), 26);
    EXPECT_EQ(With("yieldOnset=0 yieldOnsetMethod=#9"), 26);
    EXPECT_EQ(With("yieldOnset=-1"), 26);
    EXPECT_EQ(With("yieldOnset=nan"), 26);
    EXPECT_EQ(With("yieldOnset=1e-300"), passes);
    EXPECT_EQ(With("tensileStiffnessFactor=0"), 27);
    EXPECT_EQ(With("tensileStiffnessFactor=nan"), 27);
    EXPECT_EQ(With("unloadingTemperatureDependency=true"), passes);
}

TEST_F(GasketThickness, TablesMayBeginBlank) {
    EXPECT_EQ(With("table[0,1]=0"), passes);
    EXPECT_EQ(With("table[1,0]=0 table[1,1]=0"), 21);
    EXPECT_EQ(With("unloadingTable=0x0"), passes);
    EXPECT_EQ(With("unloadingTable=0x3"), passes);
    EXPECT_EQ(With("unloadingTable=3x0"), passes);
    EXPECT_EQ(With("unloadingTable=2x2"), passes);
    EXPECT_EQ(With("unloadingTable=2x2 unloadingTable[0,0]=0 unloadingTable[0,1]=0"), passes);
    EXPECT_EQ(With("unloadingTable=2x2 unloadingTable[1,0]=0 unloadingTable[1,1]=0"), 21);
}

TEST_F(GasketThickness, ContactAreaNeedsUnitsOfForce) {
    EXPECT_EQ(With("contactArea=new"), 32);
    EXPECT_EQ(With("contactArea=new variableUnits=FORCE"), passes);
    EXPECT_EQ(With("contactArea.dependencies=-1"), 32);
    EXPECT_EQ(With("contactArea.dependencies=-1 variableUnits=FORCE"), 0);
    EXPECT_EQ(With("variableUnits=FORCE"), passes);
}

class UserOptions : public kmaC_test::OptionTest {};

TEST_F(UserOptions, AUserMaterialMayHaveNoConstants) {
    EXPECT_EQ(VerdictOf("kmaC_UserMaterial"), passes);
    EXPECT_EQ(VerdictOf("kmaC_UserMaterial", "mechanicalConstants=3 thermalConstants=2"), passes);
    EXPECT_EQ(VerdictOf("kmaC_UserMaterial", "type=THERMOMECHANICAL unsymm=true"), passes);
}

TEST_F(UserOptions, DepvarChecksTheCountFirst) {
    EXPECT_EQ(VerdictOf("kmaC_Depvar", "n=-1 deleteVar=-1"), 17);
    EXPECT_EQ(VerdictOf("kmaC_Depvar", "deleteVar=-1"), 13);
    EXPECT_EQ(VerdictOf("kmaC_Depvar", "n=0 deleteVar=7"), passes);
    EXPECT_EQ(VerdictOf("kmaC_UserOutputVariables", "n=-1"), 17);
    EXPECT_EQ(VerdictOf("kmaC_UserOutputVariables", "n=max"), passes);
}

TEST_F(UserOptions, DampingLooksAtTheCompositeShareAlone) {
    EXPECT_EQ(VerdictOf("kmaC_Damping", "composite=-0.1"), 16);
    EXPECT_EQ(VerdictOf("kmaC_Damping", "composite=0"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Damping", "composite=nan"), 16);
    EXPECT_EQ(VerdictOf("kmaC_Damping", "alpha=-1 beta=nan structural=min"), passes);
}

TEST_F(UserOptions, RetiredClassesKeepTheirRules) {
    EXPECT_EQ(VerdictOf("kmaC_JointedMaterial"), passes);
    EXPECT_EQ(VerdictOf("kmaC_JointedMaterial", "jointShearRetention.dependencies=-1"), 0);
    EXPECT_EQ(VerdictOf("kmaC_JointedMaterial", "bulkFailure.table=blankrow"), passes);
    EXPECT_EQ(VerdictOf("kmaC_FluidBulkModulus", "table=blankrow"), 21);
    EXPECT_EQ(VerdictOf("kmaC_FluidExpansion", "table=blankrow zero=nan"), passes);
    EXPECT_EQ(VerdictOf("kmaC_FluidDensity", "temperature=nan pressure=-1 density=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Unimplemented", "dependencies=-1"), passes);
    EXPECT_EQ(VerdictOf("kmaC_Kappa", "dependencies=-1"), 0);
}

}  // namespace kmaC_TransportOptions_test
