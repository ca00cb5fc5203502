#include "nga_Upgrade.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <csignal>
#include <map>
#include <random>

#include "host/cli/tool_runner.h"
#include "host/store/store_support.h"
#include "nga_Collection.h"
#include "nga_ConnectorSection.h"
#include "nga_HostExtension.h"
#include "nga_Start.h"
#include "nga_Store.h"
#include "nga_StoredFile.h"
#include "support/OldFile.h"

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
}

TEST_F(ExampleUpgrades, BehavioursInNoSectionBecomeOneOfTheirOwn) {
    std::string const path = Made(453);
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    std::map<std::string, long long> adopted;
    long long rows = 0;
    for (nga::Adopted const& each : outcome.adopted) {
        EXPECT_EQ(each.collection, "sections");
        EXPECT_EQ(each.name, "recovered behaviors");
        adopted[each.className] = each.rows;
        rows += each.rows;
    }
    EXPECT_EQ(adopted["kbeC_ConnectorDamage"], 1);
    EXPECT_EQ(adopted["kbeC_ConnectorStop"], 1);
    nga::Document const document = nga::Document::Open(path);
    EXPECT_TRUE(document.Unnamed().objects.empty());
    auto const* section = static_cast<nga_ConnectorSection const*>(
        nga::Collection::FindByName("sections")->Find(document.Model(), "recovered behaviors"));
    ASSERT_TRUE(section);
    ASSERT_EQ(section->options.Size(), rows);
    std::map<std::string, long long> held;
    for (int i = 0; i < section->options.Size(); ++i)
        ++held[mdl_Description::Find(section->options.ConstGet(i).ConstGet().DynTypeId())->Name()];
    EXPECT_EQ(held, adopted);
    EXPECT_EQ(section->stateVariables, 0);
    EXPECT_EQ(section->availableComponents.Size(), 0);
    EXPECT_EQ(RunNga({"show", path, "documents['old_453'].sections['recovered behaviors']"}).code,
              0);
    for (auto const& each : outcome.file.report.references.unreferenced)
        EXPECT_EQ(each.className.find("kbeC_Connector"), std::string::npos) << each.className;
}

TEST_F(ExampleUpgrades, WhatGetsANameGetsTheSameEachTime) {
    std::string const path = Made(453);
    nga::UpgradeFileOptions options;
    for (char const* name : {"one.nga", "two.nga"}) {
        options.output = folder.File(name);
        nga::Upgrade(path, options);
    }
    EXPECT_EQ(Contents(folder.File("one.nga")), Contents(folder.File("two.nga")));
    EXPECT_EQ(SqlText(options.output, "SELECT count(*) FROM nga_ConnectorSection"), "1");
    // No two rows of a table have the same identity.
    for (char const* table : {"nga_ConnectorSection", "nga_CSWrapper", "cls_List", "cls_Map"})
        EXPECT_EQ(SqlText(options.output, std::string("SELECT count(*)-count(DISTINCT \"##Uid\") "
                                                      "FROM ") +
                                              table),
                  "0")
            << table;
}

/// A file of schema 302 with load cases, as a program leaves them that keeps its own list of them.
/// The second has a name, which is one of those that the others would get.
std::string MakeLoadCases(Folder& folder) {
    old_test::OldDatabase db;
    auto uid = [number = 0]() mutable {
        std::string bytes(16, '\0');
        bytes[0] = static_cast<char>(++number);
        return bytes;
    };
    db.Table(rom_Layout::OfMap());
    db.Table(rom_Layout::OfMapEntry());
    db.Table(rom_Layout::OfType(klcC_LoadCase::TypeId(), nga::StoredClasses()));
    db.Table(rom_Layout::OfType(nga::HostExtension::TypeId(), nga::StoredClasses()));
    for (int i = 0; i < 3; ++i)
        db.Row(klcC_LoadCase::TypeId(), {{"includeActiveBaseStateBC", i == 1 ? 1 : 0},
                                         {"##BaseClassOID", -1},
                                         {"##Uid", uid()}});
    db.Row(rom_Layout::mapEntryTypeId, {{"owner", 0},
                                        {"key", "recovered load case 2"},
                                        {"value#ClassID", int(klcC_LoadCase::TypeId())},
                                        {"value#OID", 1}});
    db.Row(cls_MapTypeId, {{"Target#Kind", int(cls_CollectionMapString)},
                           {"#First", 0},
                           {"#Count", 1},
                           {"##Uid", uid()}});
    db.Row(nga::HostExtension::TypeId(), {{"loadCases#ClassID", int(cls_MapTypeId)},
                                          {"loadCases#OID", 0},
                                          {"##BaseClassOID", -1},
                                          {"##Uid", uid()}});
    std::string const path = folder.File("cases.nga");
    old_test::WriteFile(db.Store(), path, 302);
    return path;
}

TEST_F(ExampleUpgrades, LoadCasesWithoutANameGetOneBesideThoseThatHaveIt) {
    std::string const path = MakeLoadCases(folder);
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(outcome.unreadable.empty());
    ASSERT_EQ(outcome.adopted.size(), 1u);
    EXPECT_EQ(outcome.adopted[0].className, "klcC_LoadCase");
    EXPECT_EQ(outcome.adopted[0].rows, 2);
    EXPECT_EQ(outcome.adopted[0].collection, "loadCases");
    EXPECT_EQ(outcome.adopted[0].name, "recovered load case 1");
    EXPECT_NE(nga::UpgradeText(outcome).find("no name led to these; they have one now:\n"
                                             "  klcC_LoadCase (2 rows): "
                                             "loadCases['recovered load case 1']\n"),
              std::string::npos)
        << nga::UpgradeText(outcome);
    EXPECT_NE(nga::UpgradeJson(outcome).find("\"name\": \"recovered load case 1\""),
              std::string::npos);
    nga::Document const document = nga::Document::Open(path);
    std::string names;
    nga::Collection::FindByName("loadCases")
        ->Each(document.Model(), [&](cow_String const& key, void const* object) {
            names += std::string(key.View()) + "=" +
                     (static_cast<klcC_LoadCase const*>(object)->includeActiveBaseStateBC ? "yes"
                                                                                          : "no") +
                     ";";
        });
    EXPECT_EQ(names,
              "recovered load case 1=no;recovered load case 2=yes;recovered load case 3=no;");
    // The entries stand together, and the row of the former one is nobody's.
    EXPECT_EQ(SqlText(path, "SELECT \"#First\"||' '||\"#Count\" FROM cls_Map"), "1 3");
    EXPECT_EQ(SqlText(path, "SELECT owner FROM cls_MapEntry"), "-1 0 0 0");
}

TEST_F(ExampleUpgrades, ADamagedListOfNamesIsLeftAsItIs) {
    for (char const* damage :
         {"UPDATE cls_Map SET \"#Count\"=1000000", "UPDATE cls_Map SET \"#First\"=-1",
          "UPDATE cls_MapEntry SET key=17", "UPDATE cls_MapEntry SET owner=99",
          "UPDATE nga_HostExtension SET \"loadCases#OID\"=77",
          "UPDATE cls_MapEntry SET \"value#OID\"='x'"}) {
        std::string const path = MakeLoadCases(folder);
        Sql(path, damage);
        std::string const rows = SqlText(path, "SELECT count(*) FROM cls_MapEntry");
        nga::UpgradeOutcome const outcome = nga::Upgrade(path);
        EXPECT_TRUE(outcome.adopted.empty()) << damage;
        EXPECT_FALSE(outcome.unreadable.empty()) << damage;
        EXPECT_EQ(SqlText(path, "SELECT count(*) FROM cls_MapEntry"), rows) << damage;
        bool told = false;
        for (auto const& each : outcome.file.report.references.unreferenced)
            told = told || (each.className == "klcC_LoadCase" && each.rows >= 2);
        EXPECT_TRUE(told) << damage;
    }
}

TEST_F(ExampleUpgrades, ANameThatLeadsToNothingStaysOne) {
    std::string const path = MakeLoadCases(folder);
    Sql(path, "UPDATE cls_MapEntry SET \"value#ClassID\"=NULL,\"value#OID\"=NULL");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    ASSERT_EQ(outcome.unreadable.size(), 1u);
    EXPECT_EQ(outcome.unreadable[0].path, "documents['cases'].loadCases['recovered load case 2']");
    EXPECT_EQ(outcome.unreadable[0].message, "a name without an object");
    ASSERT_EQ(outcome.adopted.size(), 1u);
    EXPECT_EQ(outcome.adopted[0].rows, 3);
}

// The entry behind the end of its list is nobody's.
TEST_F(ExampleUpgrades, AnEntryOutsideItsListRefersToNothing) {
    std::string const path = MakeLoadCases(folder);
    Sql(path, "UPDATE cls_Map SET \"#Count\"=0");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    ASSERT_EQ(outcome.adopted.size(), 1u);
    EXPECT_EQ(outcome.adopted[0].rows, 3);
}

TEST_F(ExampleUpgrades, WhatCannotBeReadGetsNoName) {
    std::string const path = Made(453);
    Sql(path, "UPDATE kbeC_Friction SET frictionModel='BOGUS'");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    ASSERT_EQ(outcome.unreadable.size(), 1u);
    EXPECT_NE(outcome.unreadable[0].message.find("BOGUS"), std::string::npos);
    for (nga::Adopted const& each : outcome.adopted)
        EXPECT_NE(each.className, "kbeC_ConnectorFriction");
    EXPECT_EQ(outcome.adopted.size(), 7u);
    // So the others can be.
    EXPECT_EQ(nga::Document::Open(path).Unnamed().unreadable.size(), 1u);
    EXPECT_EQ(RunNga({"tree", path}).code, 0);
}

TEST_F(ExampleUpgrades, WithoutCompletionOnlyWhatIsWholeGetsAName) {
    std::string const path = Made(453);
    RunNga({"upgrade", path, "--no-complete"});
    EXPECT_EQ(RunNga({"tree", path}).code, 0);
}

TEST_F(ExampleUpgrades, AFileOfTodayIsOnlyCopied) {
    std::string const path = MakeLoadCases(folder);
    nga::Upgrade(path);
    Sql(path, "UPDATE cls_MapEntry SET owner=-1;UPDATE cls_Map SET \"#Count\"=0");
    EXPECT_TRUE(nga::Upgrade(path).file.current);
    nga::UpgradeFileOptions options;
    options.output = folder.File("copy.nga");
    EXPECT_TRUE(nga::Upgrade(path, options).adopted.empty());
    EXPECT_EQ(nga::Document::Open(options.output).Unnamed().objects.size(), 3u);
}

TEST_F(ExampleUpgrades, NumbersAreThoseOfTheRowsThatWere) {
    std::string const path = folder.File("old_205.nga");
    Sql(path, Contents(std::string(NGA_TESTS_DIR) + "/host/old/old_205.sql"));
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    for (auto const& [typeId, report] : outcome.file.report.classes) {
        for (auto const& [field, rows] : report.dropped)
            EXPECT_LE(rows, report.rowsIn) << report.name << "." << field;
        if (report.retired) continue;
        EXPECT_EQ(std::to_string(report.versions.back()),
                  SqlText(path, "SELECT Version FROM nga_Catalogue WHERE TypeId=" +
                                    std::to_string(typeId)))
            << report.name;
    }
    // A step filled it and a later one dropped it, so nobody lost it.
    EXPECT_EQ(nga::UpgradeText(outcome).find("filled gamma"), std::string::npos);
}

TEST_F(ExampleUpgrades, TheRestIsReportedAndKept) {
    std::string const path = Made(203);
    Sql(path,
        "UPDATE cls_MapEntry SET owner=-1 WHERE key='steel S355';"
        "UPDATE cls_Map SET \"#Count\"=\"#Count\"-1 WHERE \"##OID\"=0");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(outcome.unreadable.empty()) << nga::UpgradeText(outcome);
    EXPECT_TRUE(outcome.adopted.empty());
    EXPECT_NE(nga::UpgradeText(outcome).find(
                  "nothing refers to these; the file keeps them:\n  kmaC_Material (1 row"),
              std::string::npos)
        << nga::UpgradeText(outcome);
    nga::Document document = nga::Document::Open(path);
    EXPECT_FALSE(document.Materials().IsMember("steel S355"));
    document.Save();
    nga::Document const again = nga::Document::Open(path);
    bool kept = false;
    for (nga::Leftovers::Object const& each : again.Unnamed().objects) {
        if (each.typeId != kmaC_Material::TypeId()) continue;
        auto const* steel = static_cast<kmaC_Material const*>(each.object.ErasedReferent());
        EXPECT_EQ(steel->plastic.ConstGet().table.Cell(0, 2), 120.0);
        kept = true;
    }
    EXPECT_TRUE(kept);
}

TEST_F(ExampleUpgrades, LeftoversThatCannotBeReadAreNamed) {
    std::string const path = Made(203);
    Sql(path,
        "UPDATE cls_MapEntry SET owner=-1 WHERE key='steel S355';"
        "UPDATE cls_MapEntry SET key='steel S355',\"value#OID\"=0 WHERE \"##OID\"=1;"
        "UPDATE cls_Map SET \"#Count\"=\"#Count\"-1 WHERE \"##OID\"=0;"
        "UPDATE kmaC_Hyperelastic SET type='GUMMY'");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    ASSERT_EQ(outcome.unreadable.size(), 1u);
    EXPECT_EQ(outcome.unreadable[0].path, "documents['old_203']");
    EXPECT_NE(outcome.unreadable[0].message.find("GUMMY"), std::string::npos);
}

TEST_F(ExampleUpgrades, NamesThatLeadToTheWrongAreNamed) {
    std::string const path = Made(203);
    Sql(path,
        "UPDATE cls_MapEntry SET \"value#ClassID\"=NULL,\"value#OID\"=NULL WHERE key='London "
        "clay';"
        "UPDATE cls_MapEntry SET \"value#ClassID\"=0x2640007,\"value#OID\"=0 WHERE "
        "key='rubber 60 Shore'");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    std::map<std::string, std::string> causes;
    for (nga::Finding const& each : outcome.unreadable) causes[each.path] = each.message;
    EXPECT_EQ(causes["documents['old_203'].materials['London clay']"], "a name without an object");
    EXPECT_EQ(causes["documents['old_203'].materials['rubber 60 Shore']"],
              "an object of a class that it cannot hold");
}

TEST_F(ExampleUpgrades, WhatKeepsTheWholeFileFromBeingReadIsNamed) {
    std::string const path = Made(203);
    Sql(path, "UPDATE cls_MapEntry SET owner=1 WHERE key='London clay'");
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    ASSERT_FALSE(outcome.unreadable.empty());
    EXPECT_EQ(outcome.unreadable.back().path, "documents['old_203']");
    EXPECT_NE(outcome.unreadable.back().message.find("is no entry of row 0 of table cls_Map"),
              std::string::npos)
        << outcome.unreadable.back().message;
    EXPECT_NE(RunNga({"tree", path}).code, 0);
}

TEST_F(ExampleUpgrades, WhateverKeepsADocumentFromBeingOpenedIsFound) {
    for (char const* damage :
         {"UPDATE kbpC_BPCWrapper SET \"extension#ClassID\"=0x230001",
          "UPDATE kbpC_BPCWrapper SET \"extension#OID\"='x'",
          "UPDATE kbpC_BPCWrapper SET \"extension#OID\"=-1",
          "UPDATE kbpC_BPCWrapper SET \"extension#OID\"=99",
          "UPDATE kbpC_BPCWrapper SET \"##Uid\"=x'00'", "UPDATE cls_Map SET \"##Uid\"=x'00'",
          "UPDATE cls_Map SET \"Target#Kind\"=3"}) {
        std::string const path = folder.File("old_203.nga");
        std::filesystem::remove(path);
        std::filesystem::remove(path + ".schema-203.bak");
        Made(203);
        Sql(path, damage);
        nga::UpgradeOutcome const outcome = nga::Upgrade(path);
        EXPECT_THROW(nga::Document::Open(path), nga::StoreError) << damage;
        EXPECT_FALSE(outcome.unreadable.empty()) << damage;
    }
}

TEST_F(ExampleUpgrades, ProgressGoesFromNothingToAll) {
    std::string const path = Made(203);
    nga::UpgradeFileOptions options;
    std::vector<double> seen;
    options.progress = [&](double done) { seen.push_back(done); };
    nga::Upgrade(path, options);
    ASSERT_GE(seen.size(), 2u);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_GE(seen.front(), 0.0);
    EXPECT_EQ(seen.back(), 1.0);
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

TEST_F(ExampleUpgrades, AKilledToolLeavesTheWholeOldOrTheWholeNewFile) {
    std::string const path = Made(203);
    std::string const old = Contents(path);
    std::string const whole = folder.File("whole.nga");
    ASSERT_EQ(RunNga({"upgrade", path, "-o", whole}).code, 0);
    std::string const fresh = Contents(whole);
    std::mt19937 random(11);
    int killed = 0;
    for (int round = 0; round < 40; ++round) {
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            int const nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, 1);
            dup2(nowhere, 2);
            execl(NGA_TOOL, NGA_TOOL, "upgrade", path.c_str(), static_cast<char*>(nullptr));
            _exit(3);
        }
        usleep(static_cast<unsigned>(random() % 60000));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        killed += WIFSIGNALED(status) ? 1 : 0;
        std::string const now = Contents(path);
        ASSERT_TRUE(now == old || now == fresh) << round;
        for (auto const& entry : std::filesystem::directory_iterator(folder.Path())) {
            std::string const name = entry.path().filename().string();
            if (name.find(".bak") == std::string::npos) continue;
            ASSERT_EQ(Contents(entry.path().string()), old) << round;
            std::filesystem::remove(entry.path());
        }
        store_test::Overwrite(path, old);
    }
    EXPECT_GT(killed, 0);
    // What the killed ones left is cleared away by the next.
    ASSERT_EQ(RunNga({"upgrade", path}).code, 0);
    EXPECT_EQ(folder.Entries(), 3);
}

}  // namespace
