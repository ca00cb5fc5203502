#include <gtest/gtest.h>

#include <cfloat>
#include <set>

#include "DDB_NonGeometricAttributes.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_OldClass.h"
#include "module/OldClassFacts.h"
#include "support/CurrentClasses.h"

using old_test::CurrentClasses;
using old_test::FailureOf;
using old_test::OldDatabase;
using old_test::Upgraded;

namespace {

enum : unsigned {
    elasticity = 0x2A80001,
    damping = 0x2A80002,
    stops = 0x2A80003,
    lock = 0x2A80004,
    failure = 0x2A80005,
    friction = 0x2A80006,
    behaviorOption = 0x2A80008,
    tabular = 0x2A80009,
    motionDiscontinuity = 0x2A8000A,
    tangentialBehavior = 0x2A8000D,
    plasticity = 0x2A8000E,
    damage = 0x2A8000F,
    potentialContainer = 0x2A80015,
    potential = 0x2A80016,
    connectorElasticity = 0x2A80017,
    connectorDamping = 0x2A80018,
    connectorStop = 0x2A80019,
    connectorLock = 0x2A8001A,
    connectorFailure = 0x2A8001B,
    connectorFriction = 0x2A8001C,
    connectorPlasticity = 0x2A8001D,
    connectorDamage = 0x2A8001E,
    connectorPotential = 0x2A8001F,
    term = 0x2A8002D,
    options = 0x2A8003E,
    propertyTable = 0xA000E
};

class ConnectorUpgrades : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        EnterCurrent();
    }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    // A step must leave every field of a class's layout before, and what came in.
    static std::string Plus(char const* oldName, std::string const& more) {
        for (old_test::OldClassFact const& fact : old_test::facts)
            if (std::string(oldName) == fact.oldName)
                return fact.fields + (more.empty() ? "" : ", " + more);
        return std::string();
    }
    void EnterCurrent() {
        current.Enter(behaviorOption, "kbeC_ConnectorBehaviorOption", 811, 1, "");
        current.Enter(propertyTable, "mdl_PropertyTable", 203, 1, "object table");
        current.Enter(connectorElasticity, "kbeC_ConnectorElasticity", 1022, behaviorOption,
                      Plus("kbeC_ConnectorElasticity_811", "object options"));
        current.Enter(connectorDamping, "kbeC_ConnectorDamping", 1022, behaviorOption,
                      Plus("kbeC_ConnectorDamping_811", "object options"));
        current.Enter(connectorStop, "kbeC_ConnectorStop", 811, behaviorOption,
                      "real minMotion, real maxMotion, object components");
        char const* const limits =
            ", real minMotion, real maxMotion, real minForce, real maxForce, object components";
        current.Enter(connectorLock, "kbeC_ConnectorLock", 811, behaviorOption,
                      std::string("int lockingComponent") + limits);
        current.Enter(connectorFailure, "kbeC_ConnectorFailure", 811, behaviorOption,
                      std::string("int releaseComponent") + limits);
        current.Enter(connectorFriction, "kbeC_ConnectorFriction", 1022, behaviorOption,
                      Plus("kbeC_ConnectorFriction_836", "object options"));
        current.Enter(connectorPlasticity, "kbeC_ConnectorPlasticity", 1022, behaviorOption,
                      Plus("kbeC_ConnectorPlasticity_811",
                           "object isotropicOptions, object kinematicOptions"));
        current.Enter(
            connectorDamage, "kbeC_ConnectorDamage", 1022, behaviorOption,
            Plus("kbeC_ConnectorDamage_817", "object initiationOptions, object evolutionOptions"));
        current.Enter(connectorPotential, "kbeC_ConnectorPotential", 836, 1,
                      "literal componentStyle, int componentNumber, literal sign, "
                      "real scaleFactor, real positiveExponent, real shiftFactor, "
                      "literal hFunction, object derivedComponent");
        current.Enter(term, "kbeC_CDCTerm", 1026, 1, Plus("kbeC_CDCTerm_1022", ""));
        current.Enter(
            options, "kbeC_ConnectorOptions", 1026, 1,
            Plus("kbeC_ConnectorOptions_1022", "flag useBehRegSettings, flag useBehExtSettings"));
        current.Enter(tangentialBehavior, "kbeC_TangentialBehavior", 453, 1, "");
    }

    void Need(char const* oldName) {
        rfm_TableMetadata const layout = old_test::OldLayout(oldName);
        if (!db.Store().FindTable(layout.TypeId())) db.Table(layout);
    }
    void Need(unsigned typeId, char const* name, int version, char const* fields) {
        if (!db.Store().FindTable(typeId)) db.Table(typeId, name, version, 1, fields);
    }
    int Components(std::vector<double> const& values) {
        return db.Array(1, values, cls_CollectionListInt);
    }
    /// The row of the common base.
    int Base(int components) {
        Need("kbeC_ConnectorBehaviorOption_453");
        Need(propertyTable, "mdl_PropertyTable", 203, "object table");
        return db.Row(behaviorOption, {{"components#ClassID", int(cls_ListTypeId)},
                                       {"components#OID", components},
                                       {"##BaseClassOID", -1}});
    }
    int Tabular(int components, int table) {
        Need("kbeC_Tabular_453");
        return db.Row(tabular, {{"temperatureDependency", 1},
                                {"dependencies", 2},
                                {"table#ClassID", int(propertyTable)},
                                {"table#OID", table},
                                {"##BaseClassOID", Base(components)}});
    }
    int Discontinuity(int component, double minForce) {
        Need("kbeC_MotionDiscontinuity_453");
        return db.Row(motionDiscontinuity, {{"affectedComponent", component},
                                            {"minDisplacement", -DBL_MAX},
                                            {"maxDisplacement", 2.0},
                                            {"minForce", minForce},
                                            {"maxForce", 4.0},
                                            {"##BaseClassOID", Base(7)}});
    }
    /// A container of potentials under descending keys, as entries of an integer-keyed map.
    int Container(std::vector<int> const& potentials) {
        Need("kbeC_PotentialContainer_507");
        if (!db.Store().FindTable(cls_MapTypeId)) {
            db.Table(rom_Layout::OfMap());
            db.Table(rom_Layout::OfMapEntry());
        }
        int const first = db.Store().FindTable(rom_Layout::mapEntryTypeId)->RowCount();
        int const map = db.Row(cls_MapTypeId, {{"Target#Kind", int(cls_CollectionMapInt)},
                                               {"#First", first},
                                               {"#Count", static_cast<int>(potentials.size())}});
        int key = 30;
        for (int oid : potentials)
            db.Row(rom_Layout::mapEntryTypeId, {{"owner", map},
                                                {"key", key -= 10},
                                                {"value#ClassID", int(potential)},
                                                {"value#OID", oid}});
        return db.Row(potentialContainer, {{"map#ClassID", int(cls_MapTypeId)}, {"map#OID", map}});
    }
    /// The references of a list of objects, "class:row".
    static std::vector<std::string> ListOf(Upgraded& after, int list) {
        std::vector<std::string> result;
        int const first = after.Int(cls_ListTypeId, list, "#First");
        for (int i = 0; i < after.Int(cls_ListTypeId, list, "#Count"); ++i) {
            EXPECT_EQ(after.Int(rom_Layout::listEntryTypeId, first + i, "owner"), list);
            result.push_back(after.At(rom_Layout::listEntryTypeId, first + i, "value#ClassID") +
                             ":" + after.At(rom_Layout::listEntryTypeId, first + i, "value#OID"));
        }
        return result;
    }
    static void ExpectOptions(Upgraded& after, unsigned typeId, int row, char const* field) {
        std::string const name = field;
        EXPECT_EQ(after.At(typeId, row, (name + "#ClassID").c_str()), std::to_string(options));
        int const oid = after.Int(typeId, row, (name + "#OID").c_str());
        EXPECT_EQ(after.At(options, oid, "regularize"), "1");
        EXPECT_EQ(after.At(options, oid, "defaultTolerance"), "1");
        EXPECT_EQ(after.At(options, oid, "regularization"), "0.029999999999999999");
        EXPECT_EQ(after.At(options, oid, "defaultRateFactor"), "1");
        EXPECT_EQ(after.At(options, oid, "rateFactor"), "0.90000000000000002");
        EXPECT_EQ(after.At(options, oid, "interpolation"), "LINEAR");
        EXPECT_EQ(after.At(options, oid, "extrapolation"), "CONSTANT");
        EXPECT_EQ(after.At(options, oid, "useBehRegSettings"), "1");
        EXPECT_EQ(after.At(options, oid, "useBehExtSettings"), "1");
    }
    Upgraded Run() { return Upgraded(db.Store(), current.Registrar()); }
    /// Whatever became of the empty table that damage is to come to.
    void ExpectDamageThroughAllSteps() {
        Need("kbeC_Damage_507");
        db.Row(damage, {{"iniPotOperator", "MAXIMUM"}, {"##BaseClassOID", Base(6)}});
        Upgraded after = Run();
        ASSERT_EQ(after.Rows(connectorDamage), 1);
        EXPECT_EQ(after.At(connectorDamage, 0, "initiationPotentialOperator"), "MAXIMUM");
        ExpectOptions(after, connectorDamage, 0, "initiationOptions");
        ExpectOptions(after, connectorDamage, 0, "evolutionOptions");
        EXPECT_EQ(after.Report().classes.at(connectorDamage).versions,
                  (std::vector<int>{811, 817, 1022}));
    }

    CurrentClasses current;
    OldDatabase db;

private:
    int m_count = 0;
};

TEST_F(ConnectorUpgrades, ElasticityAndDampingTakeWhatTheirMiddleClassHad) {
    struct {
        char const* oldName;
        unsigned oldId, newId;
    } const cases[] = {{"kbeC_Elasticity_453", elasticity, connectorElasticity},
                       {"kbeC_Damping_453", damping, connectorDamping}};
    for (auto const& each : cases) {
        Need(each.oldName);
        for (int i = 0; i < 40; ++i)
            db.Row(each.oldId, {{"coupling", "COUPLED"},
                                {"behavior", "NONLINEAR"},
                                {"dependentComponents#ClassID", int(cls_ListTypeId)},
                                {"dependentComponents#OID", 100 + i},
                                {"frequencyDependency", 1},
                                {"##BaseClassOID", Tabular(200 + i, 300 + i)}});
    }
    Upgraded after = Run();
    for (auto const& each : cases) {
        EXPECT_FALSE(after.Has(each.oldId));
        ASSERT_EQ(after.Rows(each.newId), 40);
        for (int i : {0, 31, 32, 39}) {
            EXPECT_EQ(after.At(each.newId, i, "coupling"), "COUPLED");
            EXPECT_EQ(after.At(each.newId, i, "behavior"), "NONLINEAR");
            EXPECT_EQ(after.At(each.newId, i, "frequencyDependency"), "1");
            EXPECT_EQ(after.At(each.newId, i, "independentComponents#ClassID"),
                      std::to_string(cls_ListTypeId));
            EXPECT_EQ(after.Int(each.newId, i, "independentComponents#OID"), 100 + i);
            EXPECT_EQ(after.Int(each.newId, i, "components#OID"), 200 + i);
            EXPECT_EQ(after.At(each.newId, i, "components#ClassID"),
                      std::to_string(cls_ListTypeId));
            EXPECT_EQ(after.Int(each.newId, i, "table#OID"), 300 + i);
            EXPECT_EQ(after.At(each.newId, i, "table#ClassID"), std::to_string(propertyTable));
            EXPECT_EQ(after.At(each.newId, i, "dependencies"), "2");
            EXPECT_EQ(after.At(each.newId, i, "temperatureDependency"), "1");
            EXPECT_EQ(after.At(each.newId, i, "##BaseClassOID"), "-1");
            ExpectOptions(after, each.newId, i, "options");
        }
        EXPECT_EQ(after.Report().classes.at(each.oldId).newName,
                  each.oldId == damping ? "kbeC_ConnectorDamping" : "kbeC_ConnectorElasticity");
    }
    EXPECT_FALSE(after.Has(tabular));
    EXPECT_TRUE(after.Has(behaviorOption));
    EXPECT_FALSE(after.HasColumn(behaviorOption, "components#OID"));
    EXPECT_EQ(after.Version(behaviorOption), 811);
    // One row for each, under numbers that no two share.
    EXPECT_EQ(after.Rows(options), 80);
    EXPECT_EQ(after.Version(options), 1026);
}

TEST_F(ConnectorUpgrades, StopsKeepTheirBase) {
    Need("kbeC_Stops_453");
    db.Row(stops,
           {{"minDisplacement", -DBL_MAX}, {"maxDisplacement", 5.0}, {"##BaseClassOID", Base(6)}});
    Upgraded after = Run();
    EXPECT_EQ(std::stod(after.At(connectorStop, 0, "minMotion")), -DBL_MAX);
    EXPECT_EQ(after.At(connectorStop, 0, "maxMotion"), "5");
    EXPECT_EQ(after.At(connectorStop, 0, "components#OID"), "6");
    EXPECT_EQ(after.At(connectorStop, 0, "##BaseClassOID"), "0");
    EXPECT_EQ(after.Version(connectorStop), 811);
}

TEST_F(ConnectorUpgrades, LocksAndFailuresTakeTheirLimitsFromTheMiddleClass) {
    Need("kbeC_Lock_453");
    Need("kbeC_Failure_453");
    for (unsigned typeId : {lock, failure}) {
        db.Row(typeId, {{"##BaseClassOID", Discontinuity(-1, -DBL_MAX)}});
        db.Row(typeId, {{"##BaseClassOID", Discontinuity(3, 1.0)}});
    }
    Upgraded after = Run();
    struct {
        unsigned typeId;
        char const* component;
    } const cases[] = {{connectorLock, "lockingComponent"}, {connectorFailure, "releaseComponent"}};
    for (auto const& each : cases) {
        EXPECT_EQ(after.At(each.typeId, 0, each.component), "2147483647");
        EXPECT_EQ(after.At(each.typeId, 1, each.component), "3");
        EXPECT_EQ(std::stod(after.At(each.typeId, 0, "minForce")), DBL_MAX);
        EXPECT_EQ(after.At(each.typeId, 1, "minForce"), "1");
        EXPECT_EQ(after.At(each.typeId, 0, "maxForce"), "4");
        // Only forces have the sign of an unset limit turned.
        EXPECT_EQ(std::stod(after.At(each.typeId, 0, "minMotion")), -DBL_MAX);
        EXPECT_EQ(after.At(each.typeId, 0, "maxMotion"), "2");
        EXPECT_EQ(after.At(each.typeId, 0, "components#OID"), "7");
        EXPECT_EQ(after.At(each.typeId, 0, "##BaseClassOID"), "-1");
    }
    EXPECT_FALSE(after.Has(motionDiscontinuity));
}

TEST_F(ConnectorUpgrades, OnlyComponentsThatNoBehaviourTakesAreDropped) {
    Need("kbeC_Stops_453");
    int const shared = Base(6);
    Base(7);
    Base(8);
    db.Row(stops, {{"##BaseClassOID", shared}});
    db.Row(stops, {{"##BaseClassOID", shared}});
    Upgraded after = Run();
    EXPECT_EQ(after.Report().classes.at(behaviorOption).dropped.at("components"), 2);
}

TEST_F(ConnectorUpgrades, WhatHasNoValueIsNotToldAsMoved) {
    Need("kbeC_Damage_507");
    db.Row(damage, {{"iniPotExponent", 2.0},
                    {"iniPotOperator", "SUM"},
                    {"lastIniId", 4},
                    {"##BaseClassOID", Base(6)}});
    db.Row(damage, {{"iniPotOperator", ""}, {"##BaseClassOID", Base(7)}});
    Upgraded after = Run();
    auto const& renamed = after.Report().classes.at(connectorDamage).renamed;
    EXPECT_EQ(renamed.at({"iniPotExponent", "initiationPotentialExponent"}), 1);
    EXPECT_EQ(renamed.at({"iniPotOperator", "initiationPotentialOperator"}), 1);
    EXPECT_EQ(renamed.count({"evoPotExponent", "evolutionPotentialExponent"}), 0u);
    // What the old class had is lost by it, not by the one that never had the field.
    auto const& dropped = after.Report().classes.at(damage).dropped;
    EXPECT_EQ(dropped, (std::map<std::string, long long>{{"lastIniId", 1}}));
    EXPECT_TRUE(after.Report().classes.at(connectorDamage).dropped.empty());
}

TEST_F(ConnectorUpgrades, AnEmptyTargetOf817IsMadeAgain) {
    Need("kbeC_ConnectorDamage_817");
    ExpectDamageThroughAllSteps();
}

TEST_F(ConnectorUpgrades, AnEmptyTargetOf1022IsMadeAgain) {
    db.Table(connectorDamage, "kbeC_ConnectorDamage", 1022, behaviorOption,
             Plus("kbeC_ConnectorDamage_817", "object initiationOptions, object evolutionOptions"));
    ExpectDamageThroughAllSteps();
}

TEST_F(ConnectorUpgrades, EmptyTargetsOf836AreMadeAgain) {
    Need("kbeC_Friction_507");
    Need("kbeC_Potential_507");
    Need("kbeC_ConnectorFriction_836");
    db.Table(connectorPotential, "kbeC_ConnectorPotential", 836, 1,
             "literal componentStyle, int componentNumber, literal sign, real scaleFactor, "
             "real positiveExponent, real shiftFactor, literal hFunction, object derivedComponent");
    db.Row(potential, {{"componentName", "sum"}, {"positiveExp", 3.0}});
    db.Row(friction, {{"derivedComponent", "sum"}, {"##BaseClassOID", Tabular(1, 9)}});
    Upgraded after = Run();
    ExpectOptions(after, connectorFriction, 0, "options");
    EXPECT_EQ(after.Report().classes.at(connectorFriction).dropped.at("derivedComponent"), 1);
    EXPECT_EQ(after.At(connectorPotential, 0, "positiveExponent"), "3");
    EXPECT_EQ(after.Report().classes.at(connectorPotential).notes.size(), 1u);
}

TEST_F(ConnectorUpgrades, FrictionOf507BringsItsPotentials) {
    Need("kbeC_Friction_507");
    Need("kbeC_Potential_507");
    char const* const styles[] = {"NUMBER", "DERIV_COMP", "OTHER"};
    for (char const* style : styles)
        db.Row(potential, {{"componentStyle", style},
                           {"componentNumber", 2},
                           {"componentName", "sum"},
                           {"scaleFactor", 1.5},
                           {"positiveExp", 3.0},
                           {"hFunction", "ABS"},
                           {"sign", "NEGATIVE"}});
    int const container = Container({2, 0, 1});
    db.Row(friction, {{"frictionModel", "USER_CUSTOMIZED"},
                      {"stickStiffness", 8.0},
                      {"tangentDirs", 4},
                      {"componentType", "NO_INDEP_COMPS"},
                      {"independentComponents#OID", 5},
                      {"slipDependency", 1},
                      {"tangentialBehavior#ClassID", int(tangentialBehavior)},
                      {"tangentialBehavior#OID", 6},
                      {"slipStyle", "COMPUTE"},
                      {"useContForceComponent", 1},
                      {"contForceStyle", "DERIV_COMP"},
                      {"contForceComponent", 2},
                      {"derivedComponent", "sum"},
                      {"frcPotOperator", "MAXIMUM"},
                      {"frcPotExponent", 2.5},
                      {"potentials#ClassID", int(potentialContainer)},
                      {"potentials#OID", container},
                      {"lastId", 3},
                      {"##BaseClassOID", Tabular(1, 9)}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(connectorFriction, 0, "frictionModel"), "USER_CUSTOMIZED");
    EXPECT_EQ(after.At(connectorFriction, 0, "stickStiffness"), "8");
    EXPECT_EQ(after.At(connectorFriction, 0, "tangentDirection"), "4");
    EXPECT_EQ(after.At(connectorFriction, 0, "componentType"), "NO_INDEPENDENT_COMPONENTS");
    EXPECT_EQ(after.At(connectorFriction, 0, "independentComponents#OID"), "5");
    EXPECT_EQ(after.At(connectorFriction, 0, "independentComponents#ClassID"),
              std::to_string(cls_ListTypeId));
    EXPECT_EQ(after.At(connectorFriction, 0, "slipDependency"), "1");
    EXPECT_EQ(after.At(connectorFriction, 0, "tangentialBehavior#OID"), "6");
    EXPECT_EQ(after.At(connectorFriction, 0, "slipStyle"), "COMPUTE");
    EXPECT_EQ(after.At(connectorFriction, 0, "useContactForceComponent"), "1");
    EXPECT_EQ(after.At(connectorFriction, 0, "contactForceStyle"), "DERIVED_COMPONENT");
    EXPECT_EQ(after.At(connectorFriction, 0, "contactForceComponent"), "2");
    EXPECT_EQ(after.At(connectorFriction, 0, "forcePotentialOperator"), "MAXIMUM");
    EXPECT_EQ(after.At(connectorFriction, 0, "forcePotentialExponent"), "2.5");
    EXPECT_EQ(after.At(connectorFriction, 0, "table#OID"), "9");
    EXPECT_EQ(after.At(connectorFriction, 0, "##BaseClassOID"), "-1");
    // A name is no object.
    EXPECT_EQ(after.At(connectorFriction, 0, "derivedComponent#OID"), "NULL");
    EXPECT_FALSE(after.HasColumn(connectorFriction, "derivedComponent"));
    EXPECT_EQ(after.Report().classes.at(connectorFriction).dropped.at("derivedComponent"), 1);
    std::string const prefix = std::to_string(connectorPotential) + ":";
    EXPECT_EQ(ListOf(after, after.Int(connectorFriction, 0, "connectorPotentials#OID")),
              (std::vector<std::string>{prefix + "2", prefix + "0", prefix + "1"}));
    EXPECT_EQ(after.At(connectorPotential, 0, "componentStyle"), "COMPONENT_NUMBER");
    EXPECT_EQ(after.At(connectorPotential, 1, "componentStyle"), "DERIVED_COMPONENT");
    EXPECT_EQ(after.At(connectorPotential, 2, "componentStyle"), "OTHER");
    EXPECT_EQ(after.At(connectorPotential, 0, "positiveExponent"), "3");
    EXPECT_EQ(after.At(connectorPotential, 0, "scaleFactor"), "1.5");
    EXPECT_EQ(after.At(connectorPotential, 0, "sign"), "NEGATIVE");
    EXPECT_EQ(after.At(connectorPotential, 0, "derivedComponent#OID"), "NULL");
    EXPECT_EQ(after.Report()
                  .classes.at(connectorPotential)
                  .notes.at("the name of its derived component is lost")
                  .rows,
              3);
    EXPECT_FALSE(after.Has(potential));
    EXPECT_FALSE(after.Has(potentialContainer));
    ExpectOptions(after, connectorFriction, 0, "options");
}

TEST_F(ConnectorUpgrades, FrictionOf453HasNoPotentialsToMove) {
    Need("kbeC_Friction_453");
    db.Row(friction, {{"frictionModel", "PREDEFINED"},
                      {"componentType", "POSITION"},
                      {"##BaseClassOID", Tabular(1, 9)}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(connectorFriction, 0, "componentType"), "POSITION");
    EXPECT_EQ(after.At(connectorFriction, 0, "connectorPotentials#OID"), "NULL");
    EXPECT_EQ(after.At(connectorFriction, 0, "contactForceComponent"), "0");
    EXPECT_EQ(after.Report().classes.at(friction).versions, (std::vector<int>{453, 507}));
    EXPECT_EQ(after.Report().classes.at(connectorFriction).versions,
              (std::vector<int>{811, 836, 1022}));
}

TEST_F(ConnectorUpgrades, PlasticityGetsTwoOptionsEach) {
    Need("kbeC_Plasticity_507");
    Need("kbeC_Potential_507");
    db.Row(potential, {{"componentStyle", "NUMBER"}});
    for (int i = 0; i < 2; ++i)
        db.Row(plasticity, {{"isotropic", 1},
                            {"isotropicType", "TABULAR"},
                            {"isotropicTable#OID", 3},
                            {"kinematic", 1},
                            {"kinematicType", "STABILIZED"},
                            {"kinematicDependencies", 2},
                            {"kinematicTable#OID", 4},
                            {"coupling", "COUPLED"},
                            {"frcPotOperator", "SUM"},
                            {"frcPotExponent", 2.0},
                            {"potentials#OID", Container({0})},
                            {"##BaseClassOID", Base(20 + i)}});
    Upgraded after = Run();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(after.At(connectorPlasticity, i, "coupling"), "COUPLED");
        EXPECT_EQ(after.At(connectorPlasticity, i, "isotropicTable#ClassID"),
                  std::to_string(propertyTable));
        EXPECT_EQ(after.At(connectorPlasticity, i, "kinematicTable#OID"), "4");
        EXPECT_EQ(after.At(connectorPlasticity, i, "kinematicDependencies"), "2");
        EXPECT_EQ(after.At(connectorPlasticity, i, "forcePotentialOperator"), "SUM");
        EXPECT_EQ(after.Int(connectorPlasticity, i, "components#OID"), 20 + i);
        EXPECT_EQ(ListOf(after, after.Int(connectorPlasticity, i, "connectorPotentials#OID")),
                  (std::vector<std::string>{std::to_string(connectorPotential) + ":0"}));
        ExpectOptions(after, connectorPlasticity, i, "isotropicOptions");
        ExpectOptions(after, connectorPlasticity, i, "kinematicOptions");
    }
    EXPECT_EQ(after.Rows(options), 4);
    std::set<int> distinct;
    for (int i = 0; i < 2; ++i)
        for (char const* field : {"isotropicOptions#OID", "kinematicOptions#OID"})
            distinct.insert(after.Int(connectorPlasticity, i, field));
    EXPECT_EQ(distinct, (std::set<int>{0, 1, 2, 3}));
}

TEST_F(ConnectorUpgrades, DamageTakesItsOperatorsThereAndBack) {
    Need("kbeC_Damage_507");
    struct {
        char const* initiation;
        char const* evolution;
    } const operators[] = {{"SUM", "MAXIMUM"}, {"MAXIMUM", "SUM"}};
    for (auto const& each : operators)
        db.Row(damage, {{"criterion", "FORCE"},
                        {"initiationTable#ClassID", int(propertyTable)},
                        {"initiationTable#OID", 1},
                        {"evolution", 1},
                        {"evolutionType", "MOTION"},
                        {"useAffected", 1},
                        {"affectedComponents#ClassID", int(cls_ListTypeId)},
                        {"affectedComponents#OID", 2},
                        {"coupling", "COUPLED"},
                        {"iniPotOperator", each.initiation},
                        {"iniPotExponent", 3.0},
                        {"iniPotentials#OID", Container({})},
                        {"evoPotOperator", each.evolution},
                        {"evoPotExponent", 4.0},
                        {"##BaseClassOID", Base(5)}});
    Upgraded after = Run();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(after.At(connectorDamage, i, "initiationPotentialOperator"),
                  operators[i].initiation);
        EXPECT_EQ(after.At(connectorDamage, i, "evolutionPotentialOperator"),
                  operators[i].evolution);
        EXPECT_EQ(after.At(connectorDamage, i, "initiationPotentialExponent"), "3");
        EXPECT_EQ(after.At(connectorDamage, i, "evolutionPotentialExponent"), "4");
        EXPECT_EQ(after.At(connectorDamage, i, "evolutionType"), "MOTION_TYPE");
        EXPECT_EQ(after.At(connectorDamage, i, "initiationTable#OID"), "1");
        EXPECT_EQ(after.At(connectorDamage, i, "evolutionTable#OID"), "NULL");
        EXPECT_EQ(after.At(connectorDamage, i, "affectedComponents#OID"), "2");
        EXPECT_EQ(after.At(connectorDamage, i, "components#OID"), "5");
        EXPECT_EQ(after.At(connectorDamage, i, "##BaseClassOID"), "-1");
        EXPECT_TRUE(
            ListOf(after, after.Int(connectorDamage, i, "initiationPotentials#OID")).empty());
        ExpectOptions(after, connectorDamage, i, "initiationOptions");
        ExpectOptions(after, connectorDamage, i, "evolutionOptions");
    }
}

TEST_F(ConnectorUpgrades, TheLongLiteralsOfDamageLastFrom811To817) {
    Need("kbeC_ConnectorDamage_811");
    char const* const literals[][2] = {
        {"EVOLUTION_SUM", "SUM"}, {"EVOLUTION_MAXIMUM", "MAXIMUM"}, {"OTHER", "OTHER"}};
    for (auto const& literal : literals)
        db.Row(connectorDamage, {{"evolutionPotentialOperator", literal[0]},
                                 {"initiationPotentialOperator", "INITIATION_MAXIMUM"}});
    Upgraded after = Run();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(after.At(connectorDamage, i, "evolutionPotentialOperator"), literals[i][1]);
        EXPECT_EQ(after.At(connectorDamage, i, "initiationPotentialOperator"), "MAXIMUM");
    }
}

TEST_F(ConnectorUpgrades, TermsGetOptionsAt1022AndPassTheStepTo1026) {
    Need("kbeC_CDCTerm_836");
    db.Row(term, {{"termOperator", "SUM"}, {"fieldDependencies", 3}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(term, 0, "termOperator"), "SUM");
    EXPECT_EQ(after.At(term, 0, "fieldDependencies"), "3");
    EXPECT_EQ(after.Version(term), 1026);
    ExpectOptions(after, term, 0, "options");
    EXPECT_EQ(after.Report().classes.at(term).versions, (std::vector<int>{836, 1022, 1026}));
}

TEST_F(ConnectorUpgrades, OptionsOf1022KeepTheirInterpolation) {
    Need("kbeC_ConnectorOptions_1022");
    db.Row(options, {{"interpolation", "LOGARITHMIC"}, {"rateFactor", 0.5}});
    db.Row(options, {{"rateFactor", 0.5}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(options, 0, "interpolation"), "LOGARITHMIC");
    EXPECT_EQ(after.At(options, 1, "interpolation"), "LINEAR");
    EXPECT_EQ(after.At(options, 1, "useBehRegSettings"), "1");
    EXPECT_EQ(after.At(options, 1, "useBehExtSettings"), "1");
    EXPECT_EQ(after.At(options, 1, "rateFactor"), "0.5");
}

TEST_F(ConnectorUpgrades, ReferencesFollowTheirClassesToNewNames) {
    Need("kbeC_Stops_453");
    db.Row(stops, {{"##BaseClassOID", Base(6)}});
    db.Table(rom_Layout::OfListEntry());
    db.Row(rom_Layout::listEntryTypeId,
           {{"owner", 0}, {"value#ClassID", int(stops)}, {"value#OID", 0}});
    db.Row(rom_Layout::listEntryTypeId,
           {{"owner", 0}, {"value#ClassID", int(tangentialBehavior)}, {"value#OID", 0}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(rom_Layout::listEntryTypeId, 0, "value#ClassID"),
              std::to_string(connectorStop));
    EXPECT_EQ(after.At(rom_Layout::listEntryTypeId, 0, "value#OID"), "0");
    EXPECT_EQ(after.At(rom_Layout::listEntryTypeId, 1, "value#ClassID"),
              std::to_string(tangentialBehavior));
}

TEST_F(ConnectorUpgrades, WithoutTablesNothingIsTouched) {
    Base(1);
    Upgraded after = Run();
    EXPECT_FALSE(after.Has(connectorStop));
    EXPECT_FALSE(after.Has(options));
    EXPECT_EQ(after.Version(behaviorOption), 811);
}

TEST_F(ConnectorUpgrades, MissingTablesEndTheRunInTheWordsOfTheClass) {
    struct {
        char const* oldName;
        unsigned typeId;
        char const* text;
    } const cases[] = {
        {"kbeC_Stops_453", stops,
         "rename_kbeC_Stops failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Lock_453", lock,
         "rename_kbeC_Lock failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Failure_453", failure,
         "rename_kbeC_Failure failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Damping_453", damping,
         "rename_kbeC_Damping failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Elasticity_453", elasticity,
         "rename_kbeC_Elasticity failed: inputTable for kbeC_ConnectorBehaviorOption can't be "
         "NULL"},
        {"kbeC_Damage_507", damage,
         "rename_kbeC_Damage failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Friction_507", friction,
         "rename_kbeC_Friction failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
        {"kbeC_Plasticity_507", plasticity,
         "rename_kbeC_Plasticity failed: inputTable for kbeC_ConnectorBehaviorOption can't be "
         "NULL"},
    };
    for (auto const& each : cases) {
        OldDatabase alone;
        alone.Table(old_test::OldLayout(each.oldName));
        // An empty table needs none.
        EXPECT_EQ(FailureOf(alone.Store(), current.Registrar()), "") << each.oldName;
        alone.Row(each.typeId, {{"##BaseClassOID", 0}});
        EXPECT_EQ(FailureOf(alone.Store(), current.Registrar()), each.text);
    }
    struct {
        char const* oldName;
        unsigned typeId;
        char const* text;
    } const behind[] = {
        {"kbeC_Lock_453", lock,
         "rename_kbeC_Lock failed: inputTable for kbeC_MotionDiscontinuity can't be NULL"},
        {"kbeC_Failure_453", failure,
         "rename_kbeC_Failure failed: inputTable for kbeC_MotionDiscontinuity can't be NULL"},
        {"kbeC_Damping_453", damping,
         "rename_kbeC_Damping failed: inputMdlPropertyTable can't be NULL"},
        {"kbeC_Elasticity_453", elasticity,
         "rename_kbeC_Elasticity failed: inputMdlPropertyTable can't be NULL"},
        {"kbeC_Friction_507", friction,
         "rename_kbeC_Friction failed: inputMdlPropertyTable can't be NULL"},
        {"kbeC_Plasticity_507", plasticity,
         "rename_kbeC_Plasticity failed: inputMdlPropertyTable can't be NULL"},
    };
    for (auto const& each : behind) {
        OldDatabase alone;
        alone.Table(old_test::OldLayout(each.oldName));
        alone.Table(old_test::OldLayout("kbeC_ConnectorBehaviorOption_453"));
        alone.Row(behaviorOption, {});
        alone.Row(each.typeId, {{"##BaseClassOID", 0}});
        EXPECT_EQ(FailureOf(alone.Store(), current.Registrar()), each.text);
    }
}

/// An input that tells of tables, and does not give them.
class WithoutTables : public dbc_InputDatabase {
public:
    using dbc_InputDatabase::dbc_InputDatabase;
    std::unique_ptr<dbc_TableRfm> GetInputTable(unsigned const&) override { return nullptr; }
};

/// An output that makes none.
class MakesNone : public dbc_OutputDatabase {
public:
    using dbc_OutputDatabase::dbc_OutputDatabase;
    dbc_TableRfm* GetOutputTable(unsigned const&) override { return nullptr; }
    dbc_TableMem* GetTempTable(unsigned, dbc_TempTables&, int, rfm_TableMetadata const&,
                               int) override {
        return nullptr;
    }
};

TEST_F(ConnectorUpgrades, TablesThatCannotBeHadEndTheRunInTheWordsOfTheClass) {
    struct {
        char const* oldName;
        char const* newName;
        unsigned newId;
        char const* target;
        char const* input;
    } const cases[] = {
        {"kbeC_Potential_507", "kbeC_ConnectorPotential", connectorPotential,
         "rename_kbeC_Potential failed: TempTable for ConnectorPotential(version 811) can't be "
         "NULL",
         "rename_kbeC_Potential failed: inputTable for kbeC_Potential can't be NULL"},
        {"kbeC_Stops_453", "kbeC_ConnectorStop", connectorStop,
         "rename_kbeC_Stops failed: TempTable for ConnectorStop(version 811) can't be NULL",
         "rename_kbeC_Stops failed: inputTable for kbeC_Stops can't be NULL"},
        {"kbeC_Lock_453", "kbeC_ConnectorLock", connectorLock,
         "rename_kbeC_Lock failed: TempTable for ConnectorLock(version 811) can't be NULL",
         "rename_kbeC_Lock failed: inputTable can't be NULL"},
        {"kbeC_Failure_453", "kbeC_ConnectorFailure", connectorFailure,
         "rename_kbeC_Failure failed: outputTable can't be NULL",
         "rename_kbeC_Failure failed: inputTable can't be NULL"},
        {"kbeC_Damping_453", "kbeC_ConnectorDamping", connectorDamping,
         "rename_kbeC_Damping failed: outputTable can't be NULL",
         "rename_kbeC_Damping failed: inputTable can't be NULL"},
        {"kbeC_Elasticity_453", "kbeC_ConnectorElasticity", connectorElasticity,
         "rename_kbeC_Elasticity failed: TempTable for ConnectorElasticity(version 811) can't be "
         "NULL",
         "rename_kbeC_Elasticity failed: inputTable can't be NULL"},
        {"kbeC_Damage_507", "kbeC_ConnectorDamage", connectorDamage,
         "rename_kbeC_Damage failed: TempTable for ConnectorDamage(version 811) can't be NULL",
         "rename_kbeC_Damage failed: inputTable for kbeC_Damage can't be NULL"},
        {"kbeC_Friction_507", "kbeC_ConnectorFriction", connectorFriction,
         "rename_kbeC_Friction failed: TempTable for ConnectorFriction(version 811) can't be NULL",
         "rename_kbeC_Friction failed: inputTable can't be NULL"},
        {"kbeC_Plasticity_507", "kbeC_ConnectorPlasticity", connectorPlasticity,
         "rename_kbeC_Plasticity failed: TempTable for ConnectorPlasticity(version 811) can't be "
         "NULL",
         "rename_kbeC_Plasticity failed: inputTable can't be NULL"},
    };
    auto const fails = [](dbc_OldClassVersion const& old, dbc_DatabaseConverter& converter) {
        try {
            dbc_DatabaseConverterHolder::Running const running(converter);
            converter.StartStep(811);
            old.TablesToRename(converter);
        } catch (nex_TextException const& thrown) {
            return std::string(thrown.AsString().Text());
        }
        return std::string();
    };
    for (auto const& each : cases) {
        dbc_OldClassVersion const* old = nullptr;
        for (auto const& entry : omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries()) {
            auto const* tabled = dynamic_cast<dbc_OldClassOfTable const*>(&entry.holder->GetRef());
            if (tabled && std::string(tabled->Row().oldName) == each.oldName) old = tabled;
        }
        ASSERT_TRUE(old) << each.oldName;
        OldDatabase alone;
        alone.Table(old_test::OldLayout(each.oldName));
        {
            rfm_MemoryDatabase work;
            work.CopyFrom(alone.Store());
            dbc_DatabaseConverter converter(alone.Store(), work, current.Registrar());
            converter.SetOutput(
                std::make_unique<MakesNone>(converter.Tables(), converter.Layouts()));
            EXPECT_EQ(fails(*old, converter), each.target);
        }
        {
            rfm_MemoryDatabase work;
            work.CopyFrom(alone.Store());
            work.CreateTable(old_test::Layout(each.newId, each.newName, 811, 1, ""));
            dbc_DatabaseConverter converter(alone.Store(), work, current.Registrar());
            converter.SetInput(std::make_unique<WithoutTables>(converter.Tables()));
            EXPECT_EQ(fails(*old, converter), each.input);
        }
    }
}

}  // namespace
