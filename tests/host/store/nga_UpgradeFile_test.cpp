#include "nga_UpgradeFile.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "module/OldClassFacts.h"
#include "nga_Start.h"
#include "support/OldFile.h"

using namespace store_test;
using old_test::OldDatabase;

namespace {

bool fsyncsOfFoldersFail = false;

}  // namespace

// What the tests' program calls for the one of the C library.
extern "C" int fsync(int file) {
    struct stat state;
    if (fsyncsOfFoldersFail && fstat(file, &state) == 0 && S_ISDIR(state.st_mode)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace {

enum : unsigned {
    material = 0x2380001,
    option = 0x2380002,
    materialTable = 0x2380058,
    capCreep = 0x238000A,
    capPlasticity = 0x238000C,
    plastic = 0x238003C,
    density = 0x2380017,
    wrapper = 0x238007D
};

/// A file of schema 203 with named materials that have a plasticity each.
class UpgradedStore : public Store {
protected:
    void SetUp() override {
        Store::SetUp();
        nga::Start();
    }

    static rfm_TableMetadata Current(unsigned typeId) {
        return rom_Layout::OfType(
            typeId, omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase));
    }
    static std::string Uid(int number) {
        std::string bytes(16, '\0');
        std::memcpy(bytes.data(), &number, sizeof number);
        bytes[15] = 1;
        return bytes;
    }
    void Fill(OldDatabase& db, int materials, int cells = 8) {
        db.Table(rom_Layout::OfList());
        db.Table(rom_Layout::OfMap());
        db.Table(rom_Layout::OfMapEntry());
        db.Table(Current(option));
        db.Table(Current(materialTable));
        db.Table(old_test::OldLayout("kmaC_Plastic_203"));
        db.Table(old_test::OldLayout("kmaC_Material_203"));
        db.Table(Current(wrapper));
        int uid = 1;
        for (int i = 0; i < materials; ++i) {
            std::vector<double> values(static_cast<std::size_t>(cells));
            for (std::size_t cell = 0; cell < values.size(); ++cell)
                values[cell] = static_cast<double>(cell) + 1 + i;
            int const array = db.Row(cls_ListTypeId, {{"Target#Handle", OldDatabase::Bytes(values)},
                                                      {"Target#Columns", 4},
                                                      {"Target#Kind", 82},
                                                      {"##Uid", Uid(uid++)}});
            int const table = db.Row(materialTable, {{"table#ClassID", int(cls_ListTypeId)},
                                                     {"table#OID", array},
                                                     {"allowEmptyFirstRow", 0},
                                                     {"##BaseClassOID", -1},
                                                     {"##Uid", Uid(uid++)}});
            int const base = db.Row(option, {{"##BaseClassOID", -1}, {"##Uid", Uid(uid++)}});
            int const plasticity = db.Row(plastic, {{"temperatureDependency", 0},
                                                    {"dependencies", 0},
                                                    {"hardening", "COMBINED"},
                                                    {"rate", 0},
                                                    {"dataType", "PARAMETERS"},
                                                    {"table#ClassID", int(materialTable)},
                                                    {"table#OID", table},
                                                    {"##BaseClassOID", base},
                                                    {"##Uid", Uid(uid++)}});
            int const named = db.Row(material, {{"plastic#ClassID", int(plastic)},
                                                {"plastic#OID", plasticity},
                                                {"##BaseClassOID", -1},
                                                {"##Uid", Uid(uid++)}});
            std::string const name = "steel-" + std::to_string(i);
            db.Row(rom_Layout::mapEntryTypeId, {{"owner", 0},
                                                {"key", name.c_str()},
                                                {"value#ClassID", int(material)},
                                                {"value#OID", named}});
        }
        db.Row(cls_MapTypeId, {{"Target#Kind", int(cls_CollectionMapString)},
                               {"#First", 0},
                               {"#Count", materials},
                               {"##Uid", Uid(uid++)}});
        db.Row(wrapper, {{"extension#ClassID", int(cls_MapTypeId)},
                         {"extension#OID", 0},
                         {"##BaseClassOID", -1},
                         {"##Uid", Uid(uid++)}});
    }
    std::string OldFile(int materials, int cells = 8) {
        OldDatabase db;
        Fill(db, materials, cells);
        std::string const path = folder.File("old.nga");
        old_test::WriteFile(db.Store(), path, 203);
        return path;
    }
    static std::string FailureOf(std::string const& path,
                                 nga::UpgradeFileOptions const& options = {}) {
        try {
            nga::UpgradeFile(path, options);
        } catch (nga::StoreError const& error) {
            EXPECT_EQ(error.Path(), path);
            return error.Cause();
        }
        return std::string();
    }
};

TEST_F(UpgradedStore, ReadsAsAModelAndKeepsTheOldFileBeside) {
    std::string const path = OldFile(3);
    std::string const before = Contents(path);
    EXPECT_EQ(Refusal(path),
              "was written with schema 203 by nga 0.0 and holds class kmaC_Material (0x2380001) in "
              "version 203 of 1106; to bring it to schema 1111, run: nga upgrade " +
                  path);
    nga::UpgradedFile const result = nga::UpgradeFile(path);
    EXPECT_EQ(result.schema, 203);
    EXPECT_EQ(result.writer, "nga 0.0");
    EXPECT_EQ(result.backup, path + ".schema-203.bak");
    EXPECT_EQ(Contents(result.backup), before);
    EXPECT_EQ(folder.Entries(), 2);
    std::unique_ptr<ddr_Model> const model = nga::LoadModel(path);
    kmaC_MaterialContainer const& materials = Materials(*model);
    ASSERT_EQ(materials.Size(), 3);
    kmaC_Plastic const& plastic = materials.ConstGet("steel-1").plastic.ConstGet();
    EXPECT_EQ(plastic.hardening, kmaC_Plastic::HardeningEnm::COMBINED);
    EXPECT_EQ(plastic.numBackstresses, 1);
    EXPECT_EQ(plastic.table.Columns(), 4);
    // The third column is that of the first row, in every row.
    EXPECT_EQ(plastic.table.Cell(0, 2), 4.0);
    EXPECT_EQ(plastic.table.Cell(1, 2), 4.0);
    EXPECT_EQ(plastic.table.Cell(1, 3), 9.0);
    EXPECT_EQ(SqlText(path, "PRAGMA user_version"), "1111");
    EXPECT_EQ(SqlText(path, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(SqlText(path, "SELECT Version FROM nga_Catalogue WHERE ClassName='kmaC_Plastic'"),
              "1107");
    // A second time there is nothing to do.
    std::string const after = Contents(path);
    EXPECT_TRUE(nga::UpgradeFile(path).current);
    EXPECT_EQ(Contents(path), after);
    EXPECT_EQ(folder.Entries(), 2);
}

TEST_F(UpgradedStore, IsTheSameFileEachTime) {
    std::string const path = OldFile(20);
    nga::UpgradeFileOptions options;
    for (char const* name : {"one.nga", "two.nga"}) {
        options.output = folder.File(name);
        EXPECT_TRUE(nga::UpgradeFile(path, options).backup.empty());
    }
    EXPECT_EQ(Contents(folder.File("one.nga")), Contents(folder.File("two.nga")));
    EXPECT_EQ(SqlText(path, "PRAGMA user_version"), "203");
}

TEST_F(UpgradedStore, DryRunsChangeNothingAndTellTheSame) {
    std::string const path = OldFile(5);
    std::string const before = Contents(path);
    nga::UpgradeFileOptions options;
    options.dryRun = true;
    nga::UpgradedFile const tried = nga::UpgradeFile(path, options);
    dbc_UpgradeReport const& dry = tried.report;
    EXPECT_EQ(tried.backup, path + ".schema-203.bak");
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(folder.Entries(), 1);
    dbc_UpgradeReport const wet = nga::UpgradeFile(path).report;
    ASSERT_EQ(dry.classes.size(), wet.classes.size());
    for (auto const& [typeId, report] : wet.classes) {
        dbc_ClassReport const& other = dry.classes.at(typeId);
        EXPECT_EQ(other.versions, report.versions);
        EXPECT_EQ(other.rowsOut, report.rowsOut);
        EXPECT_EQ(other.filled, report.filled);
        EXPECT_EQ(other.dropped, report.dropped);
        EXPECT_EQ(other.renamed, report.renamed);
    }
}

TEST_F(UpgradedStore, ASignalTakesTheScratchCopyOfADryRunWithIt) {
    std::string const path = OldFile(5);
    std::string const scratch = folder.File("scratch");
    std::filesystem::create_directory(scratch);
    auto const files = [&] {
        return std::distance(std::filesystem::directory_iterator(scratch),
                             std::filesystem::directory_iterator());
    };
    for (int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            setenv("TMPDIR", scratch.c_str(), 1);
            nga::UpgradeFileOptions options;
            options.dryRun = true;
            options.inspect = [&](std::string const&, dbc_References const&) {
                raise(files() == 1 ? signal : SIGABRT);
            };
            try {
                nga::UpgradeFile(path, options);
            } catch (...) {
            }
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_EQ(files(), signal == SIGKILL ? 1 : 0);
    }
    // A kill asks nobody; the next dry run clears up after it.
    char const* const former = std::getenv("TMPDIR");
    std::string const kept = former ? former : "";
    setenv("TMPDIR", scratch.c_str(), 1);
    nga::UpgradeFileOptions options;
    options.dryRun = true;
    options.inspect = [&](std::string const&, dbc_References const&) { EXPECT_EQ(files(), 1); };
    nga::UpgradeFile(path, options);
    if (former)
        setenv("TMPDIR", kept.c_str(), 1);
    else
        unsetenv("TMPDIR");
    EXPECT_EQ(files(), 0);
}

TEST_F(UpgradedStore, ASignalTakesTheHalfMadeFileWithIt) {
    std::string const path = OldFile(5);
    std::string const before = Contents(path);
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            nga::UpgradeFileOptions options;
            options.inspect = [&](std::string const&, dbc_References const&) {
                raise(folder.Entries() == 2 ? signal : SIGABRT);
            };
            try {
                nga::UpgradeFile(path, options);
            } catch (...) {
            }
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_EQ(folder.Entries(), 1);
        EXPECT_EQ(Contents(path), before);
    }
    // A handler of the program's own is not put aside, and no handler of ours stays.
    ::signal(SIGHUP, SIG_IGN);
    nga::UpgradeFileOptions options;
    options.inspect = [&](std::string const&, dbc_References const&) { raise(SIGHUP); };
    nga::UpgradeFile(path, options);
    EXPECT_EQ(::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(::signal(SIGTERM, SIG_DFL), SIG_DFL);
}

// The folder that cannot be synced says so only after the new file stands in its place.
TEST_F(UpgradedStore, KeepsTheOldFileWhereTheNewOneMayNotBeOnTheDisk) {
    std::string const path = OldFile(2);
    std::string const before = Contents(path);
    fsyncsOfFoldersFail = true;
    std::string const failure = FailureOf(path);
    fsyncsOfFoldersFail = false;
    EXPECT_NE(failure.find("it was saved, but writing its folder to the disk failed"),
              std::string::npos)
        << failure;
    EXPECT_EQ(Contents(path + ".schema-203.bak"), before);
    EXPECT_EQ(SqlText(path, "PRAGMA user_version"), "1111");
}

TEST_F(UpgradedStore, RefusesAClassThatIsGoneInAVersionThatNothingLeadsOnFrom) {
    OldDatabase db;
    Fill(db, 1);
    db.Table(old_test::OldLayout("kmaC_CapCreep_203"));
    db.Row(capCreep, {{"law", "TIME"}, {"mechanism", "COHESION"}});
    std::string const path = folder.File("cap.nga");
    old_test::WriteFile(db.Store(), path, 204);
    Sql(path, "UPDATE nga_Catalogue SET Version=204 WHERE ClassName='kmaC_CapCreep'");
    std::string const before = Contents(path);
    EXPECT_EQ(FailureOf(path),
              "it holds class kmaC_CapCreep in version 204, from which nothing leads to a class of "
              "today");
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(folder.Entries(), 1);
    // One that is still there is read as far as its fields have their names.
    Sql(path,
        "DROP TABLE kmaC_CapCreep;DELETE FROM nga_Catalogue WHERE ClassName='kmaC_CapCreep';"
        "UPDATE nga_Catalogue SET Version=204 WHERE ClassName='kmaC_Plastic'");
    auto const notes = nga::UpgradeFile(path).report.classes.at(plastic).notes;
    ASSERT_EQ(notes.size(), 1u);
    EXPECT_EQ(notes.begin()->first,
              "no step leads on from version 204, so only fields of the same name are carried");
}

TEST_F(UpgradedStore, RefusesAnOldClassUnderAnotherName) {
    std::string const path = OldFile(1);
    Sql(path, "UPDATE nga_Catalogue SET ClassName='kmaC_Foo' WHERE ClassName='kmaC_Plastic'");
    EXPECT_EQ(FailureOf(path), "the catalogue of classes does not fit class kmaC_Foo (0x238003C)");
}

TEST_F(UpgradedStore, DoesNotNeedTheColumnsOfCollectionsInTheirOrder) {
    std::string const path = OldFile(3);
    std::string const ordered = folder.File("ordered.nga");
    nga::UpgradeFileOptions options;
    options.output = ordered;
    nga::UpgradeFile(path, options);
    Sql(path,
        "CREATE TABLE x(\"value\",\"value#OID\" INTEGER,\"key\" KEYBLOB,\"owner\" INTEGER,"
        "\"value#ClassID\" INTEGER,\"##OID\" INTEGER PRIMARY KEY);"
        "INSERT INTO x SELECT \"value\",\"value#OID\",\"key\",\"owner\",\"value#ClassID\","
        "\"##OID\" FROM cls_MapEntry;DROP TABLE cls_MapEntry;"
        "ALTER TABLE x RENAME TO cls_MapEntry");
    EXPECT_TRUE(nga::UpgradeFile(path).report.references.unreferenced.empty());
    EXPECT_TRUE(SameMaterials(*nga::LoadModel(path), *nga::LoadModel(ordered)));
    EXPECT_EQ(SqlText(path,
                      "SELECT group_concat(name) FROM pragma_index_info("
                      "'cls_MapEntry#owner#key')"),
              "owner,key");
}

TEST_F(UpgradedStore, MakesItsIndexAnewWhereSomebodyElseMadeOneOfItsName) {
    std::string const path = OldFile(1);
    Sql(path, "CREATE UNIQUE INDEX \"cls_MapEntry#owner#key\" ON cls_MapEntry(\"value#OID\")");
    nga::UpgradeFile(path);
    EXPECT_EQ(SqlText(path, "SELECT sql FROM sqlite_schema WHERE type='index'"),
              "CREATE INDEX \"cls_MapEntry#owner#key\" ON \"cls_MapEntry\"(\"owner\",\"key\")");
}

TEST_F(UpgradedStore, TheRemedyIsAWordForAShell) {
    std::filesystem::create_directory(folder.File("my parts"));
    std::string const path = folder.File("my parts/it's old.nga");
    std::filesystem::copy_file(OldFile(1), path);
    std::string const refusal = Refusal(path);
    EXPECT_NE(refusal.find("run: nga upgrade '" + folder.File("my parts/it'\\''s old.nga") + "'"),
              std::string::npos)
        << refusal;
}

TEST_F(UpgradedStore, NeverOverwritesABackup) {
    std::string const path = OldFile(1);
    std::string const old = Contents(path);
    Overwrite(path + ".schema-203.bak", "somebody's");
    EXPECT_EQ(nga::UpgradeFile(path).backup, path + ".schema-203.bak.2");
    EXPECT_EQ(Contents(path + ".schema-203.bak"), "somebody's");
    EXPECT_EQ(Contents(path + ".schema-203.bak.2"), old);
}

TEST_F(UpgradedStore, StaysWholeWhereTheConversionFails) {
    OldDatabase db;
    Fill(db, 2);
    db.Row(plastic, {{"hardening", "COMBINED"}, {"dataType", "PARAMETERS"}});
    std::string const path = folder.File("broken.nga");
    old_test::WriteFile(db.Store(), path, 203);
    std::string const before = Contents(path);
    EXPECT_EQ(FailureOf(path),
              "Row 2 of table kmaC_Plastic, field \"table#OID\", has no value, and its conversion "
              "needs the row that it should lead to.");
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(folder.Entries(), 1);
    // What a function kept open from the run that failed does not reach into the next.
    std::string const whole = OldFile(2);
    EXPECT_FALSE(nga::UpgradeFile(whole).current);
    EXPECT_EQ(Materials(*nga::LoadModel(whole)).Size(), 2);
}

TEST_F(UpgradedStore, LosesDeletedClassesAndGetsNewOnes) {
    OldDatabase db;
    Fill(db, 1);
    db.Table(old_test::OldLayout("kmaC_CapPlasticity_203"));
    db.Table(old_test::OldLayout("kmaC_CapCreep_203"));
    db.Row(capCreep, {{"law", "TIME"}, {"mechanism", "COHESION"}});
    db.Row(capPlasticity, {{"capCreep#ClassID", int(capCreep)}, {"capCreep#OID", 0}});
    std::string const path = folder.File("cap.nga");
    old_test::WriteFile(db.Store(), path, 203);
    nga::UpgradeFile(path);
    EXPECT_EQ(SqlText(path,
                      "SELECT name FROM sqlite_schema WHERE name LIKE 'kmaC_CapC%' "
                      "ORDER BY name"),
              "kmaC_CapCreepCohesion");
    EXPECT_EQ(SqlText(path,
                      "SELECT ClassName FROM nga_Catalogue WHERE ClassName LIKE "
                      "'kmaC_CapC%' ORDER BY 1"),
              "kmaC_CapCreepCohesion");
    EXPECT_EQ(SqlText(path, "SELECT law FROM kmaC_CapCreepCohesion"), "TIME");
    EXPECT_EQ(Refusal(path), "");
}

TEST_F(UpgradedStore, DoesNotNeedTheColumnsInTheirOrder) {
    std::string const path = OldFile(2);
    Sql(path,
        "CREATE TABLE x(\"##Uid\" BLOB,\"##BaseClassOID\" INTEGER,\"table#OID\" INTEGER,"
        "\"table#ClassID\" INTEGER,dataType TEXT,hardening TEXT,\"##OID\" INTEGER PRIMARY KEY);"
        "INSERT INTO x SELECT \"##Uid\",\"##BaseClassOID\",\"table#OID\",\"table#ClassID\","
        "dataType,hardening,\"##OID\" FROM kmaC_Plastic;DROP TABLE kmaC_Plastic;"
        "ALTER TABLE x RENAME TO kmaC_Plastic");
    nga::UpgradeFile(path);
    EXPECT_EQ(
        Materials(*nga::LoadModel(path)).ConstGet("steel-0").plastic.ConstGet().table.Cell(1, 2),
        3.0);
}

TEST_F(UpgradedStore, DropsViewsAndTriggersOfOthers) {
    std::string const path = OldFile(1);
    Sql(path,
        "CREATE VIEW v AS SELECT * FROM kmaC_Plastic;"
        "CREATE TRIGGER t AFTER INSERT ON kmaC_Plastic BEGIN DELETE FROM kmaC_Material; END;"
        "CREATE INDEX i ON kmaC_Plastic(rate)");
    nga::UpgradeFile(path);
    EXPECT_EQ(SqlText(path, "SELECT count(*) FROM sqlite_schema WHERE type IN ('view','trigger')"),
              "0");
    EXPECT_EQ(Materials(*nga::LoadModel(path)).Size(), 1);
}

TEST_F(UpgradedStore, RefusesWhatItDoesNotKnow) {
    std::string const path = OldFile(1);
    Sql(path,
        "CREATE TABLE mine(\"##OID\" INTEGER PRIMARY KEY);"
        "INSERT INTO nga_Catalogue VALUES(77,'mine','mine',203,1)");
    EXPECT_EQ(FailureOf(path), "it holds class mine (0x4D), which this nga does not know");
    Sql(path,
        "DROP TABLE mine;DELETE FROM nga_Catalogue WHERE TypeId=77;"
        "UPDATE nga_Catalogue SET Version=1107 WHERE ClassName='kmaC_Plastic'");
    // The version is that of the class now, and its table is brought to its layout.
    EXPECT_EQ(FailureOf(path), "");
}

TEST_F(UpgradedStore, KeepsLinksAndModes) {
    std::string const path = OldFile(1);
    std::string const link = folder.File("link.nga");
    std::filesystem::create_symlink("old.nga", link);
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    nga::UpgradedFile const result = nga::UpgradeFile(link);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(result.backup, link + ".schema-203.bak");
    EXPECT_FALSE(std::filesystem::is_symlink(result.backup));
    EXPECT_EQ(SqlText(result.backup, "PRAGMA user_version"), "203");
    EXPECT_EQ(SqlText(path, "PRAGMA user_version"), "1111");
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
}

TEST_F(UpgradedStore, TheOldFileIsCopiedWhereItCannotHaveASecondName) {
    // A link from another file system: the old file stays beside the link.
    std::string const elsewhere = "/dev/shm/nga-upgrade-test-" + std::to_string(getpid()) + ".nga";
    std::string const path = OldFile(3);
    struct stat here, there;
    if (stat("/dev/shm", &there) != 0 || stat(path.c_str(), &here) != 0 ||
        here.st_dev == there.st_dev)
        GTEST_SKIP() << "there is no second file system";
    std::filesystem::copy_file(path, elsewhere);
    std::filesystem::permissions(elsewhere, std::filesystem::perms(0640));
    std::string const link = folder.File("link.nga");
    std::filesystem::create_symlink(elsewhere, link);
    std::string const backup = link + ".schema-203.bak";
    Overwrite(backup, "somebody's");
    nga::UpgradedFile const result = nga::UpgradeFile(link);
    EXPECT_EQ(result.backup, backup + ".2");
    EXPECT_EQ(Contents(backup), "somebody's");
    EXPECT_EQ(Contents(result.backup), Contents(path));
    EXPECT_EQ(std::filesystem::status(result.backup).permissions(), std::filesystem::perms(0640));
    EXPECT_EQ(SqlText(elsewhere, "PRAGMA user_version"), "1111");
    // No part of a copy is left.
    EXPECT_EQ(folder.Entries(), 4);
    std::filesystem::remove(elsewhere);
}

TEST_F(UpgradedStore, AKillLeavesTheWholeOldOrTheWholeNewFile) {
    std::string const path = OldFile(400, 80);
    std::string const old = Contents(path);
    nga::UpgradeFileOptions elsewhere;
    elsewhere.output = folder.File("whole.nga");
    nga::UpgradeFile(path, elsewhere);
    std::string const fresh = Contents(elsewhere.output);
    std::mt19937 random(7);
    int killed = 0;
    for (int round = 0; round < 100; ++round) {
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            try {
                nga::UpgradeFile(path);
            } catch (...) {
            }
            _exit(0);
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
        Overwrite(path, old);
    }
    EXPECT_GT(killed, 0);
}

}  // namespace
