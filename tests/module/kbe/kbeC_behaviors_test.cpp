#include <algorithm>

#include "kbeC_UnderTest.h"
#include "rfm_MemoryDatabase.h"
#include "rom_Transporter.h"
#include "support/ChangeRecords.h"
#include "support/FieldMutator.h"
#include "support/Owned.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"
#include "support/Tables.h"

// Connector behaviours at their edges, and what holds them.

namespace kbeC_behaviors_test {

using kbeC_test::Object;
using kbeC_test::passes;
using kbeC_test::Raises;
using nga_test::ArrayOf;

class ConnectorBehaviors : public kbeC_test::ConnectorTest {};

// ---- table options ---------------------------------------------------------------------------

TEST_F(ConnectorBehaviors, NewTableOptionsPassAndHaveTheDefaultRate) {
    kbeC_ConnectorOptions const options;
    EXPECT_NO_THROW(options.AssertValid());
    EXPECT_TRUE(options.HasDefaultRate());
}

TEST_F(ConnectorBehaviors, TableOptionsTakenFromTheBehaviorAreNotChecked) {
    char const* const off = "regularize=false defaultTolerance=false";
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", off, passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", "regularization=5", passes));
    EXPECT_TRUE(
        Raises("kbeC_ConnectorOptions", std::string(off) + " useBehRegSettings=false", "56"));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", "useBehRegSettings=false regularization=5", "57"));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions",
                       "useBehRegSettings=false defaultTolerance=false regularization=5", passes));
}

TEST_F(ConnectorBehaviors, ARateFactorIsAboveZeroAndAtMostOne) {
    std::string const own = "defaultRateFactor=false rateFactor=";
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", own + "1", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", own + "1.0000001", "59"));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", own + "0", "59"));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", own + "1e-300", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", "rateFactor=0.9", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", "rateFactor=0.5", "58"));
    EXPECT_TRUE(Raises("kbeC_ConnectorOptions", "rateFactor=7", "58"));
}

TEST_F(ConnectorBehaviors, ARateThatIsNotTheDefaultMayStillBeValid) {
    kbeC_ConnectorOptions options;
    options.defaultRateFactor = false;
    EXPECT_NO_THROW(options.AssertValid());
    EXPECT_FALSE(options.HasDefaultRate());
    options = kbeC_ConnectorOptions();
    options.rateFactor = 0.5;
    EXPECT_FALSE(options.HasDefaultRate());
    options = kbeC_ConnectorOptions();
    options.interpolation = kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC;
    EXPECT_NO_THROW(options.AssertValid());
    EXPECT_FALSE(options.HasDefaultRate());
    options = kbeC_ConnectorOptions();
    options.useBehRegSettings = options.regularize = options.useBehExtSettings = false;
    options.regularization = 5.0;
    options.extrapolation = kbeC_ConnectorOptions::ExtrapolationEnm::LINEAR;
    EXPECT_TRUE(options.HasDefaultRate());
}

TEST_F(ConnectorBehaviors, OwnersDoNotAskTheRulesOfTheirTableOptions) {
    // These raise 56 by themselves.
    std::string const invalid =
        "options.useBehRegSettings=false options.regularize=false options.defaultTolerance=false";
    EXPECT_TRUE(Raises("kbeC_ConnectorElasticity", "components=1 table=1x1 " + invalid, passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorDamping", "components=1 table=1x1 " + invalid, passes));
    EXPECT_TRUE(Raises("kbeC_CDCTerm", "intrinsicComponents=1 " + invalid, passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", invalid, passes));
}

// ---- friction laws ---------------------------------------------------------------------------

TEST_F(ConnectorBehaviors, APenaltyNeedsTheColumnsThatItReads) {
    std::string const law = "kbeC_TangentialBehavior";
    EXPECT_TRUE(Raises(law, "", "31"));
    EXPECT_TRUE(Raises(law, "slipRateDependency=true table=1x1", "20"));
    EXPECT_TRUE(Raises(law, "pressureDependency=true table=1x1", "20"));
    EXPECT_TRUE(Raises(law, "pressureDependency=true table=0x1", passes));
    EXPECT_TRUE(Raises(law, "pressureDependency=true slipRateDependency=true table=1x2", "20"));
    EXPECT_TRUE(Raises(law, "table=0x1", passes));
    EXPECT_TRUE(Raises(law, "table=1x9 temperatureDependency=true dependencies=-5", passes));
    // Row by row.
    EXPECT_TRUE(Raises(law, "slipRateDependency=true table=1,-1;-1,1", "26"));
    EXPECT_TRUE(Raises(law, "table=0;0", passes));
}

TEST_F(ConnectorBehaviors, AnExponentialDecayReadsItsFirstRowAlone) {
    std::string const law = "kbeC_TangentialBehavior";
    std::string const decay = "formulation=EXPONENTIAL_DECAY ";
    EXPECT_TRUE(Raises(law, decay + "table=0.5,0.3,0.1;-1,-1,-1", passes));
    EXPECT_TRUE(Raises(law, decay + "table=0.5,0.5,0", passes));
    EXPECT_TRUE(Raises(law, decay + "table=0.5,0.3,-1", "23"));
    // The decay coefficient is one of the first when there are more.
    EXPECT_TRUE(Raises(law, decay + "table=0.5,0.3,-1,1", "24"));
    EXPECT_TRUE(Raises(law, decay + "table=0.5,0.3,1,-1", passes));
    EXPECT_TRUE(Raises(law, decay + "table=0x3", "33"));
    EXPECT_TRUE(Raises(law, decay + "table=0x0", "33"));
    EXPECT_TRUE(Raises(law, decay + "shearStressLimit=-1 table=1x3", passes));
    std::string const test = decay + "exponentialDecayDefinition=TEST_DATA ";
    EXPECT_TRUE(Raises(law, test + "table=0x3", "32"));
    EXPECT_TRUE(Raises(law, test + "table=0x2", "32"));
    EXPECT_TRUE(Raises(law, test + "table=0x1", "31"));
    EXPECT_TRUE(Raises(law, test + "table=-1,-2,0.1", passes));
}

TEST_F(ConnectorBehaviors, AFrictionLawOfNoKnownFormHasNoRules) {
    std::string const law = "kbeC_TangentialBehavior";
    EXPECT_TRUE(Raises(law, "formulation=#2 fraction=-1", passes));
    EXPECT_TRUE(Raises(
        law, "formulation=EXPONENTIAL_DECAY exponentialDecayDefinition=#2 fraction=-1", "30"));
    EXPECT_TRUE(
        Raises(law, "table=1x1 maximumElasticSlip=#2 fraction=-1 absoluteDistance=-1", passes));
    EXPECT_TRUE(Raises(law, "table=1x1 maximumElasticSlip=ABSOLUTE_DISTANCE fraction=-1", passes));
    EXPECT_TRUE(Raises(law, "table=1x1 absoluteDistance=-1", passes));
}

// ---- elasticity and damping ------------------------------------------------------------------

TEST_F(ConnectorBehaviors, ANewBehaviorLacksComponents) {
    for (char const* className :
         {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping", "kbeC_ConnectorStop",
          "kbeC_ConnectorLock", "kbeC_ConnectorFailure", "kbeC_ConnectorPlasticity",
          "kbeC_ConnectorDamage"})
        EXPECT_TRUE(Raises(className, "", "3"));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", "", passes));
}

TEST_F(ConnectorBehaviors, SevenComponentsAreNotTooMany) {
    EXPECT_TRUE(Raises("kbeC_ConnectorElasticity", "components=1,2,3,4,5,6,1 table=1x7", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorDamping", "components=1,1 table=1x2", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorElasticity", "components=0 table=1x1", "4"));
    EXPECT_TRUE(Raises("kbeC_ConnectorElasticity", "components=min table=1x1", "4"));
}

TEST_F(ConnectorBehaviors, ATableIsAskedOfALinearBehaviorOnly) {
    for (std::string const className : {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping"}) {
        EXPECT_TRUE(Raises(className, "components=1 table=0", "blank"));
        EXPECT_TRUE(Raises(className, "components=1 behavior=NONLINEAR table=0,0", passes));
        // Before anything that the frequency or its columns could fail with.
        EXPECT_TRUE(Raises(className,
                           "components=1 table=0,0 coupling=COUPLED "
                           "frequencyDependency=true",
                           "blank"));
        EXPECT_TRUE(Raises(className, "components=1 dependencies=-1 table=0", "0"));
    }
    EXPECT_TRUE(
        Raises("kbeC_ConnectorElasticity", "components=1 behavior=RIGID table=0,0", passes));
}

TEST_F(ConnectorBehaviors, AFrequencyNeedsALinearUncoupledBehavior) {
    for (std::string const className : {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping"}) {
        std::string const base = "components=1 frequencyDependency=true table=1x2 ";
        EXPECT_TRUE(Raises(className, base, passes));
        EXPECT_TRUE(Raises(className, base + "behavior=NONLINEAR", "5"));
        EXPECT_TRUE(Raises(className, base + "behavior=NONLINEAR coupling=COUPLED", "5"));
        EXPECT_TRUE(Raises(className, base + "coupling=COUPLED", "7"));
        EXPECT_TRUE(Raises(className, base + "coupling=COUPLED_POSITION", "7"));
    }
    EXPECT_TRUE(Raises("kbeC_ConnectorElasticity",
                       "components=1 behavior=RIGID frequencyDependency=true", "5"));
}

TEST_F(ConnectorBehaviors, IndependentComponentsAreForCoupledNonlinearBehaviors) {
    for (std::string const className : {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping"}) {
        std::string const coupled = "components=1 behavior=NONLINEAR coupling=COUPLED table=1x0 ";
        EXPECT_TRUE(Raises(className, coupled, "12"));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=1", passes));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=1,2,3,4,5,6", passes));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=99,-7,0", passes));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=1,1", "10"));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=6,5,6", "10"));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=1,1,1,1,1,1,1", "9"));
        EXPECT_TRUE(Raises(className, coupled + "independentComponents=1 table=1x1", "11"));
    }
}

TEST_F(ConnectorBehaviors, TheRefusalOfARateNamesTheBehavior) {
    EXPECT_EQ(kbeC_test::VerdictOf("kbeC_ConnectorElasticity",
                                   "components=1 table=1x1 options.defaultRateFactor=false"),
              "Table rate options cannot be specified for this behavior (Elasticity).");
    EXPECT_TRUE(Raises("kbeC_ConnectorDamping",
                       "components=1 table=1x1 options.regularization=9 "
                       "options.useBehRegSettings=false options.extrapolation=LINEAR",
                       passes));
}

// ---- friction, potentials, derived components ------------------------------------------------

TEST_F(ConnectorBehaviors, APredefinedFrictionIsCheckedForItsStiffnessAlone) {
    std::string const friction = "kbeC_ConnectorFriction";
    EXPECT_TRUE(Raises(friction, "stickStiffness=0", "6"));
    EXPECT_TRUE(Raises(friction, "frictionModel=USER_CUSTOMIZED stickStiffness=0", "6"));
    EXPECT_TRUE(Raises(friction, "frictionModel=USER_CUSTOMIZED", "19"));
    // Its law would raise 31.
    EXPECT_TRUE(Raises(friction, "tangentialBehavior=new", passes));
    EXPECT_TRUE(Raises(friction,
                       "independentComponents=7 options.rateFactor=0.5 slipStyle=#9 "
                       "componentType=MOTION useContactForceComponent=true",
                       passes));
}

TEST_F(ConnectorBehaviors, AFrictionOfTheUsersOwnNeedsAContactForce) {
    std::string const own = "frictionModel=USER_CUSTOMIZED tangentDirection=1 ";
    std::string const friction = "kbeC_ConnectorFriction";
    EXPECT_TRUE(Raises(friction, own, "42"));
    EXPECT_TRUE(Raises(friction, own + "table=0,7;0,7", "42"));
    EXPECT_TRUE(Raises(friction, own + "table=0,0;-1,0", passes));
    EXPECT_TRUE(Raises(friction, own + "table=nan", passes));
    std::string const derived =
        own + "useContactForceComponent=true contactForceStyle=DERIVED_COMPONENT ";
    EXPECT_TRUE(Raises(friction, derived, passes));
    EXPECT_TRUE(Raises(friction, derived + "derivedComponent=new", passes));
    EXPECT_TRUE(Raises(friction, derived + "derivedComponent.cdcTerms=+", "51"));
    // Only the style in force counts.
    EXPECT_TRUE(Raises(friction, derived + "contactForceComponent=9", passes));
    EXPECT_TRUE(Raises(friction, own + "table=1x1 derivedComponent.cdcTerms=+", passes));
    // Neither the shape of the table nor its rows.
    EXPECT_TRUE(Raises(friction, own + "table=1,1;0,0 dependencies=9", passes));
}

TEST_F(ConnectorBehaviors, ASlipIsSpecifiedOrComputed) {
    std::string const computed =
        "frictionModel=USER_CUSTOMIZED slipStyle=COMPUTE table=1x1 forcePotentialExponent=0 ";
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", computed, "41"));
    EXPECT_TRUE(
        Raises("kbeC_ConnectorFriction", computed + "forcePotentialOperator=MAXIMUM", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", computed + "slipStyle=SPECIFY tangentDirection=6",
                       passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", computed + "forcePotentialExponent=nan", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", computed + "slipStyle=#2", "38"));
}

TEST_F(ConnectorBehaviors, IndependentComponentsOfAFrictionAreInRangeWheneverThereAreSome) {
    std::string const own = "frictionModel=USER_CUSTOMIZED tangentDirection=1 table=1x1 ";
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", own + "independentComponents=7", "17"));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", own + "independentComponents=none", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", own + "componentType=POSITION", "18"));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction",
                       own + "componentType=POSITION independentComponents=1,1,1,1,1,1,1,1",
                       passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorFriction", own + "connectorPotentials=+", passes));
}

TEST_F(ConnectorBehaviors, APotentialNeedsItsComponent) {
    std::string const potential = "kbeC_ConnectorPotential";
    EXPECT_TRUE(Raises(potential, "", "36"));
    EXPECT_TRUE(Raises(potential, "componentNumber=6", passes));
    EXPECT_TRUE(Raises(potential, "componentNumber=6 positiveExponent=0", passes));
    EXPECT_TRUE(Raises(potential, "componentNumber=6 positiveExponent=nan", passes));
    EXPECT_TRUE(Raises(potential, "componentNumber=6 positiveExponent=-0.5", "40"));
    EXPECT_TRUE(Raises(potential, "componentStyle=DERIVED_COMPONENT", passes));
    EXPECT_TRUE(Raises(potential, "componentStyle=DERIVED_COMPONENT positiveExponent=-0.5", "40"));
    EXPECT_TRUE(Raises(potential, "componentNumber=6 derivedComponent.cdcTerms=+", passes));
}

TEST_F(ConnectorBehaviors, ATermTakesAnyNumberAsAComponent) {
    EXPECT_TRUE(Raises("kbeC_CDCTerm", "", "51"));
    for (char const* number : {"9", "0", "-1", "7", "max", "min"})
        EXPECT_TRUE(Raises("kbeC_CDCTerm", std::string("intrinsicComponents=") + number, passes));
    EXPECT_TRUE(Raises("kbeC_CDCTerm", "intrinsicComponents=1 localDependency=true", "54"));
    EXPECT_TRUE(Raises("kbeC_CDCTerm", "intrinsicComponents=1 indepCompType=#2", passes));
    EXPECT_TRUE(Raises("kbeC_CDCTerm", "intrinsicComponents=1 table=0,0;0,0", passes));
}

TEST_F(ConnectorBehaviors, ADerivedComponentAsksItsTermsFirstToLast) {
    EXPECT_TRUE(Raises("kbeC_DerivedComponent", "", passes));
    EXPECT_TRUE(Raises("kbeC_DerivedComponent",
                       "cdcTerms=+ cdcTerms.intrinsicComponents=1 cdcTerms=+ "
                       "cdcTerms.intrinsicComponents=2",
                       passes));
    EXPECT_TRUE(Raises("kbeC_DerivedComponent",
                       "cdcTerms=+ cdcTerms.intrinsicComponents=1 cdcTerms.localDependency=true "
                       "cdcTerms=+",
                       "54"));
    EXPECT_TRUE(Raises("kbeC_DerivedComponent",
                       "cdcTerms=+ cdcTerms=+ cdcTerms.intrinsicComponents=1 "
                       "cdcTerms.localDependency=true",
                       "51"));
}

cow_List<int> ListOf(std::initializer_list<int> numbers) {
    cow_List<int> list;
    for (int number : numbers) list.Append(number);
    return list;
}

TEST_F(ConnectorBehaviors, AvailableComponentsAreThoseOfAllTerms) {
    kbeC_DerivedComponent derived;
    EXPECT_TRUE(derived.ValidComponents(ListOf({}), true));
    EXPECT_TRUE(derived.ValidComponents(ListOf({}), false));
    kbeC_CDCTerm term;
    term.intrinsicComponents = ListOf({1, 3});
    derived.cdcTerms.Append(term);
    EXPECT_TRUE(derived.ValidComponents(ListOf({3, 2, 1}), true));
    EXPECT_FALSE(derived.ValidComponents(ListOf({1, 2}), true));
    EXPECT_TRUE(derived.ValidComponents(ListOf({}), false));
    // Independent components count where the term depends on them, whatever is asked.
    term.indepComponents = ListOf({5});
    derived.cdcTerms.Append(term);
    EXPECT_TRUE(derived.ValidComponents(ListOf({1, 3}), true));
    derived.cdcTerms.Get(1).localDependency = true;
    EXPECT_FALSE(derived.ValidComponents(ListOf({1, 3}), true));
    EXPECT_FALSE(derived.ValidComponents(ListOf({1, 3}), false));
    EXPECT_TRUE(derived.ValidComponents(ListOf({5}), false));
    EXPECT_FALSE(derived.ValidComponents(ListOf({5}), true));
    EXPECT_TRUE(derived.ValidComponents(ListOf({5, 3, 1}), true));
}

// ---- plasticity and damage -------------------------------------------------------------------

TEST_F(ConnectorBehaviors, APlasticityNeedsAYieldForce) {
    std::string const plasticity = "kbeC_ConnectorPlasticity";
    EXPECT_TRUE(Raises(plasticity, "components=1", "44"));
    EXPECT_TRUE(Raises(plasticity, "components=1 isotropic=false", "43"));
    EXPECT_TRUE(Raises(plasticity, "components=1 isotropicTable=0,1,1;0,2,2", "44"));
    EXPECT_TRUE(Raises(plasticity, "components=1 isotropicTable=0,1,1;5,2,2", passes));
    EXPECT_TRUE(Raises(plasticity, "components=1 isotropicTable=nan,2,2", passes));
    EXPECT_TRUE(Raises(plasticity, "components=1 isotropicTable=0,0,0", "blank"));
    EXPECT_TRUE(
        Raises(plasticity, "isotropicTable=1x3 connectorPotentials=+ components=1", passes));
    EXPECT_TRUE(Raises(plasticity, "coupling=COUPLED isotropicTable=1x3", passes));
    EXPECT_TRUE(
        Raises(plasticity, "coupling=COUPLED isotropicTable=1x3 forcePotentialExponent=0", "41"));
    EXPECT_TRUE(
        Raises(plasticity, "coupling=#2 isotropicTable=1x3 forcePotentialExponent=0", passes));
}

TEST_F(ConnectorBehaviors, TheColumnsOfAPlasticityFollowItsTypes) {
    std::string const plasticity = "kbeC_ConnectorPlasticity";
    for (std::string const type : {"TABULAR", "EXPONENTIAL_LAW"})
        for (int columns = 1; columns <= 8; ++columns) {
            std::string const base = "components=1 isotropicType=" + type + " isotropicTable=1x" +
                                     std::to_string(columns);
            EXPECT_TRUE(Raises(plasticity, base, columns == 3 ? passes : "45"));
            EXPECT_TRUE(Raises(plasticity,
                               base + " isotropicTemperature=true isotropicDependencies=2",
                               columns == 6 ? passes : "45"));
        }
    for (auto const& [type, data] :
         {std::pair<std::string, int>("HALF_CYCLE", 2), {"STABILIZED", 3}, {"PARAMETERS", 3}})
        for (int columns = 1; columns <= 8; ++columns) {
            std::string const base =
                "components=1 isotropic=false kinematic=true kinematicType=" + type +
                " kinematicTable=1x" + std::to_string(columns);
            EXPECT_TRUE(Raises(plasticity, base, columns == data ? passes : "45"));
            EXPECT_TRUE(Raises(plasticity,
                               base + " kinematicTemperature=true kinematicDependencies=2",
                               columns == data + 3 ? passes : "45"));
        }
}

TEST_F(ConnectorBehaviors, ATabularIsotropicHardeningTakesAnyRate) {
    std::string const base =
        "components=1 isotropicTable=1x3 isotropicOptions.rateFactor=0.5 "
        "isotropicOptions.interpolation=LOGARITHMIC ";
    EXPECT_TRUE(Raises("kbeC_ConnectorPlasticity", base, passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorPlasticity", base + "isotropicType=EXPONENTIAL_LAW",
                       "c~Plasticity;+isotropic+definition+must+be+TABULAR"));
    EXPECT_TRUE(Raises("kbeC_ConnectorPlasticity",
                       "components=1 isotropicTable=1x3 isotropicOptions=new "
                       "isotropicType=EXPONENTIAL_LAW",
                       passes));
    for (std::string const type : {"HALF_CYCLE kinematicTable=1x2", "STABILIZED kinematicTable=1x3",
                                   "PARAMETERS kinematicTable=1x3"})
        EXPECT_TRUE(Raises("kbeC_ConnectorPlasticity",
                           base +
                               "kinematic=true kinematicOptions.defaultRateFactor=false "
                               "kinematicType=" +
                               type,
                           "c~Plasticity;+kinematic"));
}

TEST_F(ConnectorBehaviors, TheColumnsOfADamageFollowItsLaws) {
    std::string const damage = "kbeC_ConnectorDamage";
    std::string const uncoupled = "components=1 initiationTable=1x2 ";
    EXPECT_TRUE(Raises(damage, "components=1", "45"));
    EXPECT_TRUE(Raises(damage, uncoupled + "evolutionTable=1x1", passes));
    EXPECT_TRUE(Raises(damage, uncoupled + "evolution=false", passes));
    EXPECT_TRUE(Raises(damage, "coupling=COUPLED initiationTable=1x2 evolutionTable=1x1", passes));
    struct Law {
        char const* settings;
        int columns;
    };
    for (Law const& law : {Law{"softening=LINEAR evolutionType=MOTION_TYPE", 1},
                           {"softening=LINEAR evolutionType=ENERGY_TYPE", 1},
                           {"softening=TABULAR evolutionType=MOTION_TYPE", 2},
                           {"softening=TABULAR evolutionType=ENERGY_TYPE", 1},
                           {"softening=EXPONENTIAL evolutionType=MOTION_TYPE", 2},
                           {"softening=EXPONENTIAL evolutionType=ENERGY_TYPE", 1}})
        for (int columns = 1; columns <= 7; ++columns) {
            std::string const table =
                std::string(" evolutionTable=1x") + std::to_string(columns) + " ";
            EXPECT_TRUE(Raises(damage, uncoupled + law.settings + table,
                               columns == law.columns ? passes : "45"));
            EXPECT_TRUE(Raises(damage,
                               uncoupled + law.settings + table +
                                   "evolutionTemperature=true evolutionDependencies=1",
                               columns == law.columns + 2 ? passes : "45"));
            EXPECT_TRUE(Raises(damage,
                               "coupling=COUPLED criterion=PLASTIC_MOTION initiationTable=1x3 " +
                                   (law.settings + table),
                               columns == law.columns + 1 ? passes : "45"));
        }
    for (int columns = 1; columns <= 7; ++columns) {
        std::string const base = "evolution=false initiationTable=1x" + std::to_string(columns);
        for (std::string const criterion : {"FORCE", "MOTION", "PLASTIC_MOTION"}) {
            int const coupled = criterion == "PLASTIC_MOTION" ? 3 : 2;
            std::string const by = base + " criterion=" + criterion;
            EXPECT_TRUE(Raises(damage, by + " components=1", columns == 2 ? passes : "45"));
            EXPECT_TRUE(
                Raises(damage, by + " coupling=COUPLED", columns == coupled ? passes : "45"));
            EXPECT_TRUE(Raises(damage,
                               by + " coupling=COUPLED initiationTemperature=true "
                                    "initiationDependencies=2",
                               columns == coupled + 3 ? passes : "45"));
        }
    }
}

TEST_F(ConnectorBehaviors, ADamageBeginsAtALimit) {
    std::string const damage = "kbeC_ConnectorDamage";
    std::string const base = "components=1 evolutionTable=1x1 initiationTable=";
    EXPECT_TRUE(Raises(damage, base + "-1e36,1e36", "47"));
    EXPECT_TRUE(Raises(damage, base + "-1e36,5", passes));
    EXPECT_TRUE(Raises(damage, base + "5,1e36", passes));
    EXPECT_TRUE(Raises(damage, base + "1e36,-1e36", passes));
    EXPECT_TRUE(Raises(damage, base + "1,2;-1e36,1e36 criterion=MOTION", "47"));
    EXPECT_TRUE(Raises(damage, base + "-1e36,1e36 criterion=PLASTIC_MOTION", passes));
    // Too narrow to be read: its shape fails.
    EXPECT_TRUE(Raises(damage, base + "-1e36", "45"));
    EXPECT_TRUE(Raises(damage, base + "0,0", passes));
    EXPECT_TRUE(Raises(damage, base + "0,0 criterion=PLASTIC_MOTION", "blank"));
}

TEST_F(ConnectorBehaviors, TabularSofteningHasDamageFromZeroToOne) {
    std::string const damage = "kbeC_ConnectorDamage";
    std::string const base = "components=1 initiationTable=1x2 softening=TABULAR evolutionTable=";
    EXPECT_TRUE(Raises(damage, base + "0,0;0.5,1", passes));
    EXPECT_TRUE(Raises(damage, base + "0,0;1,1", passes));
    EXPECT_TRUE(Raises(damage, base + "0,0;0.5,1;0,0", "49"));
    EXPECT_TRUE(Raises(damage, base + "0,0;0.5,1;1.5,0", "48"));
    EXPECT_TRUE(Raises(damage, base + "0,0;-0.5,1", "48"));
    // Rows of zeros behind a bad one are not looked at, but one before it is.
    EXPECT_TRUE(Raises(damage, base + "0,0;1.5,0;0,0", "48"));
    EXPECT_TRUE(Raises(damage, base + "1,0;0,0;1.5,0", "49"));
    EXPECT_TRUE(Raises(damage, base + "0,0", "blank"));
    EXPECT_TRUE(Raises(damage, base + "0,1", passes));
    EXPECT_TRUE(Raises(damage, base + "nan,1", passes));
    EXPECT_TRUE(Raises(damage, base + "0x2", passes));
    EXPECT_TRUE(Raises(damage, base + "2x0", "45"));
    EXPECT_TRUE(Raises(damage, base + "1.5,0 evolution=false", passes));
}

TEST_F(ConnectorBehaviors, ExponentialSofteningHasPositiveParameters) {
    std::string const damage = "kbeC_ConnectorDamage";
    std::string const base =
        "components=1 initiationTable=1x2 softening=EXPONENTIAL evolutionTable=";
    EXPECT_TRUE(Raises(damage, base + "-7,0.5", passes));
    EXPECT_TRUE(Raises(damage, base + "1,0", "50"));
    EXPECT_TRUE(Raises(damage, base + "1,1;1,-1", "50"));
    EXPECT_TRUE(Raises(damage, base + "1,nan", "50"));
    EXPECT_TRUE(Raises(damage, base + "1", "45"));
    EXPECT_TRUE(Raises(damage, base + "1 evolutionType=ENERGY_TYPE", passes));
    EXPECT_TRUE(Raises(damage, base + "1,0 evolutionType=ENERGY_TYPE", "50"));
    EXPECT_TRUE(Raises(damage, base + "1,0 evolution=false", passes));
}

TEST_F(ConnectorBehaviors, ADamageMayAskForAffectedComponents) {
    std::string const base =
        "components=1 initiationTable=1x2 evolutionTable=1x1 useAffected=true ";
    EXPECT_TRUE(Raises("kbeC_ConnectorDamage", base, "46"));
    EXPECT_TRUE(Raises("kbeC_ConnectorDamage", base + "affectedComponents=99", passes));
}

// ---- stops, locks, failures ------------------------------------------------------------------

TEST_F(ConnectorBehaviors, ALimitIsNeededAndTwoAreInOrder) {
    EXPECT_TRUE(Raises("kbeC_ConnectorStop", "components=1", "1"));
    EXPECT_TRUE(Raises("kbeC_ConnectorStop", "components=1 minMotion=0", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorStop", "components=1 maxMotion=0", passes));
    EXPECT_TRUE(Raises("kbeC_ConnectorStop", "components=1 minMotion=0 maxMotion=0", "14"));
    EXPECT_TRUE(Raises("kbeC_ConnectorStop", "components=1 minMotion=nan", passes));
    for (std::string const className : {"kbeC_ConnectorLock", "kbeC_ConnectorFailure"}) {
        EXPECT_TRUE(Raises(className, "components=1", "2"));
        for (char const* limit : {"minMotion=0", "maxMotion=0", "minForce=0", "maxForce=0"})
            EXPECT_TRUE(Raises(className, std::string("components=1 ") + limit, passes));
        EXPECT_TRUE(Raises(className, "components=1 minMotion=0 maxMotion=0", "14"));
        EXPECT_TRUE(Raises(className, "components=1 minForce=5 maxForce=5", "15"));
        EXPECT_TRUE(Raises(className, "components=1 minForce=5 maxMotion=1", passes));
        EXPECT_TRUE(Raises(className, "components=1 minForce=-2 maxForce=-1", passes));
    }
}

TEST_F(ConnectorBehaviors, ALockOrFailureActsOnOneComponentOrOnAll) {
    for (auto const& [className, field] :
         {std::pair<std::string, std::string>("kbeC_ConnectorLock", " lockingComponent="),
          {"kbeC_ConnectorFailure", " releaseComponent="}}) {
        std::string const base = "components=1 minMotion=0" + field;
        for (char const* good : {"1", "6", "-1", "max"})
            EXPECT_TRUE(Raises(className, base + good, passes));
        for (char const* bad : {"0", "7", "-2", "min", "2147483646"})
            EXPECT_TRUE(Raises(className, base + bad, "16"));
        EXPECT_TRUE(Raises(className, "components=1" + field + "0", "16"));
    }
}

// ---- what holds behaviours -------------------------------------------------------------------

TEST_F(ConnectorBehaviors, ARepositoryHoldsThemUnderNumbers) {
    kbeC_BehaviorOptionContainer repository;
    EXPECT_EQ(repository.DynTypeId(), 0x2A80007u);
    nga_test::ChangeRecords changes;
    kbeC_ConnectorStop stop;
    stop.minMotion = 1.0;
    EXPECT_TRUE(repository.Insert(7, stop));
    EXPECT_TRUE(repository.Insert(-3, new kbeC_ConnectorLock));
    EXPECT_TRUE(repository.Insert(2, new kbeC_ConnectorDamage));
    changes.Take();
    EXPECT_TRUE(repository.Insert(7, new kbeC_ConnectorFriction));
    std::string const lines = changes.Take();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 2);
    EXPECT_LT(lines.find("Remove"), lines.find("Insert"));
    cow_List<int> const& keys = repository.Keys();
    ASSERT_EQ(keys.Size(), 3);
    EXPECT_EQ(keys.ConstGet(0), -3);
    EXPECT_EQ(keys.ConstGet(1), 2);
    EXPECT_EQ(keys.ConstGet(2), 7);
    EXPECT_EQ(repository.ConstGet(7).DynTypeId(), kbeC_ConnectorFriction::TypeId());
    EXPECT_EQ(repository.ConstGetPtr(8), nullptr);
    EXPECT_FALSE(repository.IsMember(8));
    kbeC_BehaviorOptionContainer const before(repository);
    static_cast<kbeC_ConnectorLock&>(repository.Get(-3)).minForce = 4.0;
    EXPECT_FALSE(before.ConstGet(-3) == repository.ConstGet(-3));
    EXPECT_EQ(before.ConstGetPtr(2), repository.ConstGetPtr(2));
    EXPECT_TRUE(repository.Remove(2));
    EXPECT_EQ(repository.Size(), 2);
}

/// Written into a store in memory and read from it.
template <class T, class Check>
void WithRebuilt(T const& object, Check check) {
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    rfm_MemoryDatabase database;
    int const oid = rom_Transporter(database, registrar).Write(&object, object.DynTypeId());
    rom_Transporter in(database, registrar);
    cow_ErasedHandle const read = in.Read(object.DynTypeId(), oid);
    check(*static_cast<T const*>(read.ErasedReferent()));
}

TEST_F(ConnectorBehaviors, ARepositoryIsStoredWithTheClassesOfItsElements) {
    kbeC_BehaviorOptionContainer repository;
    repository.Insert(1, new kbeC_ConnectorStop);
    repository.Insert(2, new kbeC_ConnectorPlasticity);
    repository.GetMap().InsertUnlessMember(3, kbeC_BehaviorOptionContainer::Handle());
    static_cast<kbeC_ConnectorStop&>(repository.Get(1)).components = ListOf({3, 1});
    WithRebuilt(repository, [&](kbeC_BehaviorOptionContainer const& back) {
        ASSERT_EQ(back.Size(), 3);
        EXPECT_TRUE(back.ConstGet(1) == repository.ConstGet(1));
        EXPECT_TRUE(back.ConstGet(2) == repository.ConstGet(2));
        EXPECT_EQ(back.ConstGetPtr(3), nullptr);
        EXPECT_TRUE(back.IsMember(3));
    });
}

TEST_F(ConnectorBehaviors, EveryClassComesBackFromAStoreAsItWas) {
    cls_ClassRegistrar const& registrar =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    int tried = 0;
    for (mdl_Description const* description : nga_test::ConcreteClasses()) {
        if (description->TypeId() >> 16 != kbeC_component ||
            description->TypeId() == kbeC_ContactForce::TypeId())
            continue;
        SCOPED_TRACE(description->Name());
        Object object(description->Name());
        nga_test::MutateAll(*description, object.Address());
        nga_test::MutateAll(*description, object.Address());
        rfm_MemoryDatabase database;
        int const oid =
            rom_Transporter(database, registrar).Write(object.Address(), description->TypeId());
        rom_Transporter in(database, registrar);
        cow_ErasedHandle const read = in.Read(description->TypeId(), oid);
        EXPECT_TRUE(description->Same(object.Address(), read.ErasedReferent()));
        void* const back = const_cast<void*>(read.ErasedReferent());
        EXPECT_EQ(description->Uid(back), description->Uid(object.Address()));
        ++tried;
    }
    EXPECT_EQ(tried, 13);
}

TEST_F(ConnectorBehaviors, ABehaviorWritesItsBaseFirstAndReadsItsIdentity) {
    kbeC_ConnectorStop stop;
    stop.minMotion = 0.5;
    nga_test::WriteLog log;
    std::string const lines = log.Write(stop);
    ASSERT_EQ(log.started.size(), 3u);
    EXPECT_EQ(log.started[0], std::make_pair(0x2A80019u, stop.uid));
    EXPECT_EQ(log.started[1],
              std::make_pair(0x2A80008u, static_cast<kbeC_ConnectorBehaviorOption&>(stop).uid));
    EXPECT_EQ(log.started[2], std::make_pair(0x230001u, stop.components.uid));
    EXPECT_NE(static_cast<kbeC_ConnectorBehaviorOption&>(stop).uid, stop.uid);
    EXPECT_LT(lines.find("minMotion"), lines.find("maxMotion"));
    EXPECT_LT(lines.find("maxMotion"), lines.find("components"));
    // Written once already.
    EXPECT_EQ(log.Write(stop), "start 0x2A80019 again\n");

    WithRebuilt(stop, [&](kbeC_ConnectorStop const& back) {
        EXPECT_EQ(back.uid, stop.uid);
        EXPECT_EQ(static_cast<kbeC_ConnectorBehaviorOption const&>(back).uid, stop.uid);
        EXPECT_TRUE(back == stop);
        // And once more, from there.
        WithRebuilt(back, [&](kbeC_ConnectorStop const& again) { EXPECT_TRUE(again == stop); });
    });
}

TEST_F(ConnectorBehaviors, AListKeepsTheirOrderAndItsGaps) {
    using Handle =
        cow_ArrayCOW<kbeC_ConnectorBehaviorOption, cow_Virtual<kbeC_ConnectorBehaviorOption>>;
    kbeC_ConnectorBehaviorOptionList list;
    list.Append(Handle(new kbeC_ConnectorLock));
    list.Append(Handle());
    list.Append(Handle(new kbeC_ConnectorStop));
    nga_test::WriteLog log;
    std::string const lines = log.Write(list);
    EXPECT_EQ(lines.find("start 0x230001\ncheck 1\nlist 1\nelement {\n"), 0u) << lines;
    ASSERT_EQ(log.started.front(), std::make_pair(0x230001u, list.list.uid));
    EXPECT_NE(lines.find("}\nnull element 0x2A80008\nelement {\n"), std::string::npos) << lines;
    EXPECT_LT(lines.find("start 0x2A8001A"), lines.find("start 0x2A80019"));
}

TEST_F(ConnectorBehaviors, AContactForceIsAValueThatIsWritten) {
    kbeC_ContactForce force;
    force.components = ListOf({1, 2});
    force.independentComponent = 3;
    force.dependencies = -9;
    force.table = mdl_PropertyTable(ArrayOf({{0, 0}}));
    EXPECT_NO_THROW(force.AssertValid());
    EXPECT_EQ(force.DynTypeId(), 0x2A8000Bu);
    nga_test::Owned<kbeC_ContactForce> const copy(force.Copy());
    EXPECT_EQ(copy->uid, force.uid);
    EXPECT_EQ(copy->independentComponent, 3);
    EXPECT_TRUE(copy->table.table.SharesWith(force.table.table));
    kbeC_ContactForceList list;
    list.Append(force);
    list.Append(*copy);
    list.Get(1).dependencies = 4;
    EXPECT_EQ(list.ConstGet(0).dependencies, -9);
    static_assert(!std::is_constructible_v<kbeC_ContactForce, cls_ReadVisitor const&>);
    static_assert(std::has_virtual_destructor_v<kbeC_ContactForce>);
    nga_test::WriteLog log;
    std::string const lines = log.Write(force);
    std::size_t before = 0;
    for (char const* field : {"components", "independentComponent", "slipDependency",
                              "temperatureDependency", "dependencies", "table"}) {
        std::size_t const at = lines.find(std::string(":") + field);
        ASSERT_NE(at, std::string::npos) << field << '\n' << lines;
        EXPECT_GE(at, before) << field;
        before = at;
    }
}

TEST_F(ConnectorBehaviors, AHandleEndsABehaviorWhole) {
    // Under the sanitizers this tells whether the parts of the concrete class are released.
    kbeC_ConnectorDamage damage;
    damage.initiationOptions = new kbeC_ConnectorOptions;
    {
        cow_ArrayCOW<kbeC_ConnectorBehaviorOption, cow_Virtual<kbeC_ConnectorBehaviorOption>> const
            handle(damage.Copy());
        EXPECT_EQ(damage.initiationOptions.Count(), 2);
        EXPECT_EQ(handle.ConstGet().DynTypeId(), damage.DynTypeId());
    }
    EXPECT_EQ(damage.initiationOptions.Count(), 1);
    EXPECT_FALSE(std::has_virtual_destructor_v<kbeC_ConnectorBehaviorOption>);
}

TEST_F(ConnectorBehaviors, AnEnumerationOutsideItsTableIsNotStored) {
    kbeC_ConnectorDamping damping;
    damping.behavior = static_cast<kbeC_ConnectorDamping::BehaviorEnm>(2);
    EXPECT_THROW(nga_test::Owned<kbeC_ConnectorBehaviorOption>(damping.DeepCopy()),
                 omu_ValueErrorException);
}

}  // namespace kbeC_behaviors_test
