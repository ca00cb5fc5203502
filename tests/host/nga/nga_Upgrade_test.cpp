#include "nga_Upgrade.h"

#include <gtest/gtest.h>

#include <climits>

#include "host/cli/tool_runner.h"
#include "host/store/store_support.h"
#include "nga_Start.h"
#include "nga_Store.h"

using store_test::Contents;
using store_test::Folder;
using store_test::Sql;
using store_test::SqlText;

namespace {

/// The databases of the examples, which are written by hand.
class ExampleUpgrades : public testing::Test {
protected:
    void SetUp() override { nga::Start(); }
    std::string Made(int schema) {
        std::string const name = "old_" + std::to_string(schema);
        std::string const path = folder.File(name + ".nga");
        Sql(path, Contents(std::string(NGA_EXAMPLES) + "/" + name + ".sql"));
        return path;
    }
    Folder folder;
};

TEST_F(ExampleUpgrades, TheOldestTellsItsStory) {
    std::string const path = Made(203);
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(outcome.unreadable.empty());
    EXPECT_TRUE(outcome.findings.empty());
    EXPECT_TRUE(outcome.file.report.references.dangling.empty());
    nga::Document const document = nga::Document::Open(path);
    kmaC_Material const& steel = document.Materials().ConstGet("steel S355");
    kmaC_Plastic const& plastic = steel.plastic.ConstGet();
    // The gamma of the first row stands in each.
    EXPECT_EQ(plastic.table.Cell(0, 2), 120.0);
    EXPECT_EQ(plastic.table.Cell(1, 2), 120.0);
    EXPECT_EQ(plastic.table.Cell(1, 3), 400.0);
    EXPECT_EQ(plastic.numBackstresses, 1);
    EXPECT_EQ(steel.expansion.ConstGet().type, kmaC_Expansion::TypeEnm::ISOTROPIC);
    EXPECT_TRUE(steel.expansion.ConstGet().userSubroutine);
    kmaC_CapPlasticity const& cap =
        document.Materials().ConstGet("London clay").capPlasticity.ConstGet();
    ASSERT_TRUE(cap.capCreepCohesion.GetPtr());
    EXPECT_FALSE(cap.capCreepConsolidation.GetPtr());
    EXPECT_EQ(cap.capCreepCohesion.ConstGet().law, kmaC_CapCreepCohesion::LawEnm::STRAIN);
    kmaC_Hyperelastic const& rubber =
        document.Materials().ConstGet("rubber 60 Shore").hyperelastic.ConstGet();
    EXPECT_EQ(rubber.uniaxialTestData.ConstGet().smoothing, INT_MAX);
    EXPECT_EQ(rubber.volumetricResponse, kmaC_Hyperelastic::VolumetricResponseEnm::DEFAULT);
    EXPECT_EQ(SqlText(path,
                      "SELECT t1||' '||t2||' '||t3||' '||t4||' '||a||' '||b FROM "
                      "kbpC_BoxProfile"),
              "0.8 1.0 0.8 1.2 10.0 20.0");
    EXPECT_EQ(SqlText(path, "SELECT timeSpan FROM kamC_Amplitude"), "TOTAL");
}

TEST_F(ExampleUpgrades, ConnectorsOf453GetTheLiteralsThatTheyLack) {
    std::string const path = Made(453);
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(outcome.unreadable.empty());
    auto const& damage = outcome.file.report.classes.at(0x2A8001E);
    EXPECT_EQ(damage.defaulted.at("coupling"), 1);
    EXPECT_EQ(SqlText(path, "SELECT coupling FROM kbeC_ConnectorDamage"), "UNCOUPLED");
    EXPECT_EQ(SqlText(path, "SELECT releaseComponent FROM kbeC_ConnectorFailure"), "3");
    EXPECT_EQ(SqlText(path, "SELECT lockingComponent FROM kbeC_ConnectorLock"), "2147483647");
    // No section holds them yet, so nothing refers to them.
    bool told = false;
    for (auto const& each : outcome.file.report.references.unreferenced)
        told = told || each.className == "kbeC_ConnectorDamage";
    EXPECT_TRUE(told);
}

TEST_F(ExampleUpgrades, AZeroThatStandsForNoValueIsToldWhereTheDefaultIsAnother) {
    std::string const path = Made(453);
    Sql(path, "UPDATE kbeC_Friction SET tangentDirs=NULL");
    Sql(path, "UPDATE kbeC_MotionDiscontinuity SET affectedComponent=NULL WHERE \"##OID\"=0");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    auto const& classes = outcome.file.report.classes;
    auto const& friction = classes.at(0x2A8001C);
    EXPECT_EQ(SqlText(path, "SELECT forcePotentialExponent FROM kbeC_ConnectorFriction"), "0.0");
    EXPECT_EQ(friction.missing.at("forcePotentialExponent"), 1);
    EXPECT_EQ(SqlText(path, "SELECT tangentDirection FROM kbeC_ConnectorFriction"), "0");
    EXPECT_EQ(friction.missing.at("tangentDirection"), 1);
    // A 0 that was stored, or is the default, misses nothing.
    EXPECT_EQ(friction.missing.count("stickStiffness"), 0u);
    EXPECT_EQ(friction.missing.count("useContactForceComponent"), 0u);
    EXPECT_EQ(classes.at(0x2A8001D).missing.at("forcePotentialExponent"), 1);
    EXPECT_EQ(SqlText(path, "SELECT lockingComponent FROM kbeC_ConnectorLock"), "0");
    EXPECT_EQ(classes.at(0x2A8001A).missing.at("lockingComponent"), 1);
}

TEST_F(ExampleUpgrades, FieldsOfAnAbstractClassAreCompletedToo) {
    std::string const path = Made(203);
    Sql(path, "UPDATE kamC_Amplitude SET time=NULL");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(outcome.unreadable.empty());
    auto const& amplitude = outcome.file.report.classes.at(0x2440002);
    EXPECT_EQ(amplitude.defaulted.at("timeSpan"), 1);
    EXPECT_EQ(amplitude.filled.count("timeSpan"), 0u);
    EXPECT_EQ(SqlText(path, "SELECT timeSpan FROM kamC_Amplitude"), "STEP");
}

TEST_F(ExampleUpgrades, ObjectsBesideAnUnreadableOneAreStillChecked) {
    std::string const path = Made(203);
    Sql(path, "UPDATE kbpC_BoxProfile SET width=-1.0");
    nga::UpgradeFileOptions dry;
    dry.dryRun = true;
    nga::UpgradeOutcome const whole = nga::Upgrade(path, dry);
    ASSERT_EQ(whole.findings.size(), 1u);
    Sql(path, "UPDATE kmaC_Hyperelastic SET type='GUMMY'");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path, dry);
    EXPECT_EQ(outcome.unreadable.size(), 1u);
    ASSERT_EQ(outcome.findings.size(), 1u);
    EXPECT_EQ(outcome.findings[0].path, whole.findings[0].path);
    EXPECT_EQ(outcome.findings[0].message, whole.findings[0].message);
}

TEST_F(ExampleUpgrades, ADryRunIsRefusedWhereTheRunWouldBe) {
    std::string const path = Made(203);
    std::string const nowhere = folder.File("missing/new.nga");
    ToolRun const dry = RunNga({"upgrade", path, "-o", nowhere, "--dry-run"});
    ToolRun const wet = RunNga({"upgrade", path, "-o", nowhere});
    EXPECT_EQ(wet.code, 2);
    EXPECT_EQ(dry.code, 2);
    EXPECT_EQ(dry.err, wet.err);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(ExampleUpgrades, ADryRunNamesTheBackupThatWouldBe) {
    std::string const path = Made(203);
    store_test::Overwrite(path + ".schema-203.bak", "somebody's");
    ToolRun const outcome = RunNga({"upgrade", path, "--dry-run", "--json"});
    EXPECT_NE(outcome.out.find("\"backup\": \"" + path + ".schema-203.bak.2\""), std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.err.find("the old database would be " + path + ".schema-203.bak.2"),
              std::string::npos);
    EXPECT_EQ(folder.Entries(), 2);
}

TEST_F(ExampleUpgrades, CompletionCanBeLeftOut) {
    std::string const path = Made(453);
    nga::UpgradeFileOptions options;
    options.complete = false;
    nga::UpgradeOutcome const outcome = nga::Upgrade(path, options);
    auto const& damage = outcome.file.report.classes.at(0x2A8001E);
    EXPECT_TRUE(damage.defaulted.empty());
    EXPECT_EQ(damage.missing.at("coupling"), 1);
    EXPECT_EQ(SqlText(path, "SELECT coupling FROM kbeC_ConnectorDamage"), "");
}

TEST_F(ExampleUpgrades, PotentialsOf507AreListsOfTheirOrder) {
    std::string const path = Made(507);
    nga::Upgrade(path);
    EXPECT_EQ(SqlText(path,
                      "SELECT e.\"value#OID\" FROM kbeC_ConnectorFriction f JOIN "
                      "cls_ListEntry e ON e.owner=f.\"connectorPotentials#OID\" ORDER BY "
                      "e.\"##OID\""),
              "0 1");
    EXPECT_EQ(SqlText(path, "SELECT group_concat(componentStyle,' ') FROM kbeC_ConnectorPotential"),
              "COMPONENT_NUMBER DERIVED_COMPONENT");
}

TEST_F(ExampleUpgrades, TheToolUpgradesOnRequestOnly) {
    std::string const path = Made(203);
    std::string const before = Contents(path);
    ToolRun outcome = RunNga({"tree", path});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_NE(outcome.err.find("run: nga upgrade " + path), std::string::npos) << outcome.err;
    outcome = RunNga({"upgrade", path, "--dry-run"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    std::string const dry = outcome.out;
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(folder.Entries(), 1);
    outcome = RunNga({"upgrade", path});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.err.find("the old database is " + path + ".schema-203.bak"),
              std::string::npos);
    EXPECT_EQ(dry.substr(dry.find('\n')), outcome.out.substr(outcome.out.find('\n')));
    EXPECT_EQ(Contents(path + ".schema-203.bak"), before);
    EXPECT_EQ(RunNga({"tree", path}).code, 0);
    outcome = RunNga({"upgrade", path});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, path + " is of schema 1111 already\n");
}

TEST_F(ExampleUpgrades, TheToolWritesToAnotherFileAndReportsAsJson) {
    std::string const path = Made(203);
    std::string const before = Contents(path);
    std::string const out = folder.File("new.nga");
    ToolRun outcome = RunNga({"upgrade", path, "-o", out, "--json"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("\"schema\": 203"), std::string::npos);
    EXPECT_NE(outcome.out.find("\"backup\": null"), std::string::npos);
    EXPECT_NE(outcome.out.find("\"class\": \"kmaC_Plastic\""), std::string::npos);
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(SqlText(out, "PRAGMA user_version"), "1111");
    // What stands there is not replaced.
    EXPECT_EQ(RunNga({"upgrade", path, "-o", out}).code, 2);
}

TEST_F(ExampleUpgrades, WhatCannotBeReadAfterwardsIsNamed) {
    std::string const path = Made(203);
    Sql(path, "UPDATE kmaC_Hyperelastic SET type='GUMMY'");
    ToolRun const outcome = RunNga({"upgrade", path});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.out.find("cannot be read:\n  documents['old_203'].materials['rubber 60 "
                               "Shore']: "),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find("GUMMY"), std::string::npos);
}

}  // namespace
