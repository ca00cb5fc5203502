#include <climits>

#include "../cli/tool_runner.h"
#include "nga_Store.h"
#include "store_support.h"

namespace {

using namespace store_test;
namespace fs = std::filesystem;

class DamagedFile : public Store {
protected:
    void SetUp() override {
        Store::SetUp();
        m_path = folder.File("m.nga");
        nga::SaveModel(*MakeModel(30), m_path);
    }
    std::string const& Path() const { return m_path; }

    // What a file is refused with after SQL was run on it; the file must stay as it was found.
    std::string RefusalAfter(std::string const& sql) {
        std::string const path = folder.File("damaged.nga");
        fs::copy_file(m_path, path, fs::copy_options::overwrite_existing);
        Sql(path, sql);
        return CheckedRefusal(path);
    }
    std::string CheckedRefusal(std::string const& path) {
        std::string const before = Contents(path);
        int const entries = folder.Entries();
        std::string const cause = Refusal(path);
        // A person meets the same through the tool; one file in fifty of those made at random is
        // enough, as each takes a process.
        if (m_checks++ % m_toolEach == 0) CheckTool(path, cause);
        EXPECT_TRUE(Contents(path) == before);
        EXPECT_EQ(folder.Entries(), entries);
        return cause;
    }

    static void CheckTool(std::string const& path, std::string const& cause) {
        for (std::string const verb : {"check", "export"}) {
            ToolRun const run = RunNga({verb, path});
            if (cause.empty()) {
                EXPECT_EQ(run.code, 0) << run.err;
                continue;
            }
            EXPECT_EQ(run.code, 2) << cause;
            EXPECT_EQ(run.out, "") << cause;
            EXPECT_EQ(run.err.rfind("nga: " + path + ": ", 0), 0u) << run.err;
            EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
        }
        ToolRun const import = RunNga({"import", "-", "--into", path}, cause.empty() ? "" : "{}");
        EXPECT_EQ(import.code, 2) << import.err;
    }
    void UseToolEach(int checks) { m_toolEach = checks; }

private:
    int m_checks = 0;
    int m_toolEach = 1;
    std::string m_path;
};

TEST_F(DamagedFile, IsToldFromOneThatIsNotThere) {
    EXPECT_EQ(Refusal(folder.File("none.nga")), "there is no such file");
    EXPECT_EQ(Refusal(folder.Path()), "this is a folder");
    EXPECT_EQ(Refusal("/dev/null"), "this is no file");
    EXPECT_EQ(Refusal(""), "there is no such file");
    EXPECT_EQ(Refusal(Path() + "/x"), "Not a directory");
    for (std::string const& path : {folder.File("none.nga"), folder.Path(), Path() + "/x"})
        EXPECT_EQ(RunNga({"tree", path}).err, "nga: " + path + ": " + Refusal(path) + "\n");
}

TEST_F(DamagedFile, IsNoDatabase) {
    std::string const path = folder.File("x.nga");
    Overwrite(path, "");
    EXPECT_EQ(CheckedRefusal(path), "the file is empty, not a database");
    Overwrite(path, "{\"nga\": 1}");
    EXPECT_EQ(CheckedRefusal(path), "this is no database");
    Overwrite(path, std::string(40000, 'x'));
    EXPECT_EQ(CheckedRefusal(path), "this is no database");
}

TEST_F(DamagedFile, IsOfAnotherProgram) {
    EXPECT_EQ(RefusalAfter("PRAGMA application_id=0"), "this is a database of another program");
    std::string const path = folder.File("foreign.nga");
    Sql(path, "CREATE TABLE t(a)");
    EXPECT_EQ(CheckedRefusal(path), "this is a database of another program");
}

TEST_F(DamagedFile, IsOfANewerSchema) {
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=1200"),
              "was written with schema 1200 by nga 0.1.0; this nga reads schemas 203 to 1111: a "
              "newer nga is needed");
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=1200;UPDATE nga_Catalogue SET ClassName='nga 9.9' "
                           "WHERE TypeId=0"),
              "was written with schema 1200 by nga 9.9; this nga reads schemas 203 to 1111: a "
              "newer nga is needed");
}

TEST_F(DamagedFile, IsOfAnOlderSchema) {
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=12"),
              "was written with schema 12 by nga 0.1.0, which never was; this nga reads schemas "
              "203 to 1111");
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=450;UPDATE nga_Catalogue SET Version=301 WHERE "
                           "TableName='kmaC_Material'"),
              "was written with schema 450 by nga 0.1.0 and holds class kmaC_Material (0x2380001) "
              "in version 301 of 1106; to bring it to schema 1111, run: nga upgrade " +
                  folder.File("damaged.nga"));
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=1050;UPDATE nga_Catalogue SET TypeId=99 WHERE "
                           "TableName='kmaC_Elastic'"),
              "it holds class kmaC_Elastic (0x63), which this nga does not know");
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=451;UPDATE nga_Catalogue SET TypeId=37224458,"
                           "ClassName='kmaC_CapCreep' WHERE TableName='kmaC_Elastic'"),
              "was written with schema 451 by nga 0.1.0 and holds class kmaC_CapCreep (0x238000A), "
              "which is gone; to bring it to schema 1111, run: nga upgrade " +
                  folder.File("damaged.nga"));
}

TEST_F(DamagedFile, HoldsAClassThatItsSchemaDoesNotHaveYet) {
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=203"),
              "was written with schema 203 by nga 0.1.0, and yet holds class kmaC_Material "
              "(0x2380001) in version 1106: it is damaged, or another program changed it");
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=1105").find("was written with schema 1105"), 0u);
    // All that it holds is as old as it says.
    EXPECT_EQ(RefusalAfter("PRAGMA user_version=1106"), "");
}

TEST_F(DamagedFile, HasOneNameTwice) {
    std::string const key = "UPDATE cls_MapEntry SET key='m7' WHERE key='m3'";
    EXPECT_EQ(RefusalAfter(key).find("row "), 0u);
    EXPECT_NE(RefusalAfter(key).find(" of table cls_MapEntry has the key of another, 'm7'"),
              std::string::npos);
    EXPECT_EQ(RefusalAfter("UPDATE cls_MapEntry SET key='M7' WHERE key='m3'"), "");
}

TEST_F(DamagedFile, HasALiteralThatIsNoneInARow) {
    std::string const cause =
        RefusalAfter("UPDATE kmaC_Elastic SET type='NOTYPE' WHERE \"##OID\"=4");
    EXPECT_EQ(cause.find("row 4 of table kmaC_Elastic: "), 0u) << cause;
    EXPECT_NE(cause.find("NOTYPE"), std::string::npos) << cause;
}

TEST_F(DamagedFile, HasAClassThatNobodyKnows) {
    EXPECT_EQ(RefusalAfter("CREATE TABLE x(\"##OID\" INTEGER PRIMARY KEY);"
                           "INSERT INTO nga_Catalogue VALUES(99,'x','x',300,1)"),
              "it holds class x (0x63), which this nga does not know");
}

TEST_F(DamagedFile, HasAnotherProgramsJournalBesideIt) {
    for (char const* suffix : {"-journal", "-wal"}) {
        Overwrite(Path() + suffix, "");
        EXPECT_EQ(Refusal(Path()).find("a journal of another program lies beside it (" + Path() +
                                       suffix + ")"),
                  0u);
        fs::remove(Path() + suffix);
    }
    EXPECT_EQ(Refusal(Path()), "");
    EXPECT_EQ(RefusalAfter("PRAGMA journal_mode=WAL"),
              "the database is in write-ahead mode; PRAGMA journal_mode=DELETE ends it");
}

TEST_F(DamagedFile, LacksATable) {
    for (std::string const table :
         {"kmaC_Material", "kmaC_MCWrapper", "cls_Map", "cls_MapEntry", "kmaC_Elastic", "cls_List"})
        EXPECT_EQ(RefusalAfter("DROP TABLE " + table), "table " + table + " is missing");
    EXPECT_EQ(RefusalAfter("DROP TABLE nga_Catalogue"), "the catalogue of classes is missing");
    EXPECT_EQ(RefusalAfter("DELETE FROM nga_Catalogue WHERE TableName='kmaC_Elastic'"),
              "table kmaC_Elastic is not in the catalogue of classes");
    EXPECT_EQ(RefusalAfter("DELETE FROM nga_Catalogue WHERE TableName='kmaC_Elastic';"
                           "DROP TABLE kmaC_Elastic"),
              "An object of class kmaC_Elastic is referred to, and the store has no table of it.");
}

TEST_F(DamagedFile, HasSomethingElseInTheNameOfATable) {
    EXPECT_EQ(RefusalAfter("DROP TABLE kmaC_Elastic;CREATE VIEW kmaC_Elastic AS SELECT 1"),
              "kmaC_Elastic is no table");
    EXPECT_EQ(RefusalAfter("DROP TABLE kmaC_Elastic;CREATE VIRTUAL TABLE kmaC_Elastic USING "
                           "fts5(x)")
                  .find("kmaC_Elastic is no table"),
              0u);
    EXPECT_EQ(RefusalAfter("DROP TABLE nga_Catalogue;CREATE VIEW nga_Catalogue AS SELECT 1"),
              "the catalogue of classes has not the shape it should have");
    EXPECT_EQ(RefusalAfter("UPDATE nga_Catalogue SET TableName='cls_Map' WHERE "
                           "TableName='cls_List'"),
              "the catalogue of classes names table cls_Map twice");
}

TEST_F(DamagedFile, HasOtherColumnsThanItsClass) {
    EXPECT_EQ(RefusalAfter("ALTER TABLE kmaC_Elastic DROP COLUMN moduli"),
              "table kmaC_Elastic lacks column moduli");
    EXPECT_EQ(RefusalAfter("ALTER TABLE kmaC_Elastic ADD COLUMN colour TEXT"),
              "table kmaC_Elastic has a column colour too many");
    EXPECT_EQ(RefusalAfter("ALTER TABLE kmaC_Elastic DROP COLUMN moduli;"
                           "ALTER TABLE kmaC_Elastic ADD COLUMN moduli INTEGER"),
              "table kmaC_Elastic has a column moduli of another kind");
    EXPECT_EQ(RefusalAfter("ALTER TABLE kmaC_Elastic DROP COLUMN moduli;"
                           "ALTER TABLE kmaC_Elastic ADD COLUMN moduli TEXT AS (type)"),
              "table kmaC_Elastic has a computed column moduli");
    // In another order, the same columns serve as well.
    EXPECT_EQ(RefusalAfter("ALTER TABLE kmaC_Elastic RENAME COLUMN moduli TO m;"
                           "ALTER TABLE kmaC_Elastic ADD COLUMN moduli TEXT;"
                           "UPDATE kmaC_Elastic SET moduli=m;"
                           "ALTER TABLE kmaC_Elastic DROP COLUMN m"),
              "");
}

TEST_F(DamagedFile, RefersToWhatIsNotThere) {
    EXPECT_EQ(RefusalAfter("UPDATE kmaC_Material SET \"elastic#OID\"=777 WHERE \"##OID\"=3"),
              "Row 777 of table kmaC_Elastic is referred to and does not exist.");
    EXPECT_EQ(RefusalAfter("DELETE FROM kmaC_Elastic WHERE \"##OID\"=3"),
              "Row 3 of table kmaC_Elastic is referred to and does not exist.");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Material SET \"elastic#OID\"=-5"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Material SET \"elastic#OID\"='x'"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Material SET \"elastic#ClassID\"=1"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Material SET \"elastic#ClassID\"=0x2380017"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_Map SET \"#Count\"=1000"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_Map SET \"#First\"=-1"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_Map SET \"Target#Kind\"=3"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_MapEntry SET owner=1"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Elastic SET type=5.5"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Elastic SET type='NOTYPE'"), "");
    EXPECT_NE(RefusalAfter("UPDATE kmaC_Elastic SET \"##Uid\"=x'00'"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_List SET \"Target#Handle\"=x'000000'"), "");
    EXPECT_NE(RefusalAfter("UPDATE cls_List SET \"Target#Columns\"=7"), "");
    EXPECT_NE(RefusalAfter("INSERT INTO kmaC_MCWrapper SELECT 1,\"extension#ClassID\","
                           "\"extension#OID\",\"##BaseClassOID\",\"##Uid\" FROM kmaC_MCWrapper"),
              "");
}

TEST_F(DamagedFile, IsTruncated) {
    std::string const whole = Contents(Path());
    std::string const path = folder.File("cut.nga");
    for (std::size_t size = 16384; size < whole.size(); size += 16384) {
        Overwrite(path, whole.substr(0, size));
        EXPECT_EQ(CheckedRefusal(path), "the file is truncated: " + std::to_string(size) + " of " +
                                            std::to_string(whole.size()) + " bytes are there");
    }
    UseToolEach(50);
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        Overwrite(path, whole.substr(0, random() % whole.size()));
        EXPECT_NE(CheckedRefusal(path), "");
    }
}

TEST_F(DamagedFile, WithAnyBytesChangedIsReadOrRefused) {
    std::string const whole = Contents(Path());
    std::string const path = folder.File("bent.nga");
    UseToolEach(50);
    std::mt19937 random(6);
    int refused = 0;
    for (int round = 0; round < 1500; ++round) {
        std::string bytes = whole;
        // Most of a page is empty, and what matters stands at its ends.
        for (int change = 0, n = 1 + static_cast<int>(random() % 8); change < n; ++change) {
            std::size_t const page = random() % (bytes.size() / 16384);
            std::size_t const place = random() % 2 ? random() % 120 : 16383 - random() % 4000;
            bytes[page * 16384 + place] = static_cast<char>(random());
        }
        Overwrite(path, bytes);
        refused += !CheckedRefusal(path).empty();
    }
    EXPECT_GT(refused, 100);
}

TEST_F(DamagedFile, IsNotChangedByBeingRead) {
    std::string const before = Contents(Path());
    auto const time = fs::last_write_time(Path());
    nga::LoadModel(Path());
    nga::ReadNamed(Path(), cow_String(ddr_Model::materialCmd()), "m3", kmaC_Material::TypeId());
    EXPECT_TRUE(Contents(Path()) == before);
    EXPECT_TRUE(fs::last_write_time(Path()) == time);
    EXPECT_EQ(folder.Entries(), 1);
}

}  // namespace
