#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <utility>

#include "module/OldClassFacts.h"
#include "nga_Start.h"
#include "nga_Upgrade.h"
#include "support/OldFile.h"

// Databases of old schemas that were written by hand, as SQL. Each says beside its rows what has to
// become of them: a line "-- after: SELECT ..." is asked of the upgraded file, and what follows "--
// is:" on the next line is what has to come out. A line "-- finds:" names a rule that an object
// breaks afterwards, as it did in its time; all others keep theirs. They are the second opinion on
// the registered layouts, which is why nothing here takes a layout from the library.

using store_test::Contents;
using store_test::Folder;
using store_test::Sql;
using store_test::SqlText;

namespace {

std::vector<std::string> HandWrittenFiles() {
    std::vector<std::string> files;
    for (std::string const& folder :
         {std::string(NGA_TESTS_DIR) + "/host/old", std::string(NGA_EXAMPLES)})
        for (auto const& entry : std::filesystem::directory_iterator(folder)) {
            std::string const name = entry.path().filename().string();
            if (name.rfind("old_", 0) == 0 && entry.path().extension() == ".sql")
                files.push_back(entry.path().string());
        }
    std::sort(files.begin(), files.end());
    return files;
}

/// What a file asks of what becomes of it.
struct Question {
    int line = 0;
    std::string query;
    std::string answer;
};

std::vector<Question> QuestionsOf(std::string const& sql) {
    static std::string const asks = "-- after: ";
    static std::string const answers = "-- is:";
    std::vector<Question> questions;
    std::istringstream in(sql);
    std::string line;
    bool open = false;
    for (int number = 1; std::getline(in, line); ++number) {
        bool const isAnswer = line.rfind(answers, 0) == 0;
        if (isAnswer != open)
            throw std::logic_error("a question and its answer are apart at line " +
                                   std::to_string(number));
        open = line.rfind(asks, 0) == 0;
        if (open) questions.push_back({number, line.substr(asks.size()), std::string()});
        if (isAnswer && line.size() > answers.size())
            questions.back().answer = line.substr(answers.size() + 1);
    }
    return questions;
}

/// The rules that a file says will be found broken, a line each.
std::string FindingsSaid(std::string const& sql) {
    static std::string const says = "-- finds: ";
    std::string said;
    std::istringstream in(sql);
    for (std::string line; std::getline(in, line);)
        if (line.rfind(says, 0) == 0) said += line.substr(says.size()) + "\n";
    return said;
}

std::string NameOf(std::string const& file) {
    std::filesystem::path const path(file);
    return path.parent_path().filename().string() + path.stem().string().substr(3);
}

class HandWrittenUpgrades : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override { nga::Start(); }
    std::string Made(std::string const& file) const {
        std::string const path = folder.File(NameOf(file) + ".nga");
        Sql(path, Contents(file));
        return path;
    }
    Folder folder;
};

TEST_P(HandWrittenUpgrades, BecomeWhatTheySay) {
    std::vector<Question> const questions = QuestionsOf(Contents(GetParam()));
    ASSERT_FALSE(questions.empty()) << "the file asks nothing";
    std::string const path = Made(GetParam());
    std::string const again = folder.File("again/" + NameOf(GetParam()) + ".nga");
    std::filesystem::create_directory(folder.File("again"));
    nga::UpgradeFileOptions elsewhere;
    elsewhere.output = again;
    nga::Upgrade(path, elsewhere);
    nga::UpgradeOutcome const outcome = nga::Upgrade(path);
    EXPECT_TRUE(Contents(path) == Contents(again)) << "a second upgrade gives another file";
    for (nga::Finding const& each : outcome.unreadable)
        ADD_FAILURE() << each.path << " cannot be read: " << each.message;
    // None of the files has a reference that leads nowhere.
    for (dbc_DanglingReport const& each : outcome.file.report.references.dangling)
        ADD_FAILURE() << each.className << " row " << each.firstRow << ": " << each.field
                      << " leads nowhere";
    std::string found;
    std::string const root = "documents['" + NameOf(GetParam()) + "'].";
    for (nga::Finding const& each : outcome.findings)
        found += each.path.substr(root.size()) + ": " + each.module + " " +
                 std::to_string(each.code) + "\n";
    EXPECT_EQ(found, FindingsSaid(Contents(GetParam())));
    old_test::ReadEveryRow(path);
    for (Question const& each : questions)
        EXPECT_EQ(SqlText(path, each.query), each.answer)
            << GetParam() << ":" << each.line << ": " << each.query;
}

/// The classes of a file that have rows, with their versions.
struct StoredClass {
    unsigned typeId = 0;
    int version = 0;
    std::string name;
    std::string table;
};

std::vector<StoredClass> ClassesIn(std::string const& path) {
    std::istringstream in(
        SqlText(path,
                "SELECT TypeId||' '||Version||' '||ClassName||' '||TableName FROM nga_Catalogue "
                "WHERE TypeId<>0"));
    std::vector<StoredClass> classes;
    StoredClass each;
    while (in >> each.typeId >> each.version >> each.name >> each.table)
        if (SqlText(path, "SELECT count(*) FROM \"" + each.table + "\"") != "0")
            classes.push_back(each);
    return classes;
}

// A table of a layout that had ended by then, or an identity that is used twice, would make a file
// that no program can have left.
TEST_P(HandWrittenUpgrades, AreWhatAProgramOfTheirSchemaCouldLeave) {
    std::string const path = Made(GetParam());
    int const schema = std::stoi(SqlText(path, "PRAGMA user_version"));
    EXPECT_EQ(std::filesystem::path(GetParam()).stem().string(), "old_" + std::to_string(schema));
    for (StoredClass const& each : ClassesIn(path)) {
        EXPECT_LE(each.version, schema) << each.name;
        for (old_test::OldClassFact const& fact : old_test::facts) {
            if (fact.typeId != each.typeId) continue;
            EXPECT_EQ(each.name, fact.name);
            int const over = fact.version == each.version ? fact.next : fact.version;
            bool const hadEnded = over > each.version && over <= schema;
            EXPECT_FALSE(hadEnded) << each.name << " had another layout by then";
        }
        std::string const table = "FROM \"" + each.table + "\"";
        EXPECT_EQ(SqlText(path, "SELECT max(\"##OID\")-count(*) " + table), "-1") << each.name;
        if (each.table == "cls_ListEntry" || each.table == "cls_MapEntry") continue;
        EXPECT_EQ(SqlText(path, "SELECT count(*)-count(DISTINCT \"##Uid\") " + table +
                                    " WHERE length(\"##Uid\")=16"),
                  "0")
            << each.name;
        EXPECT_EQ(SqlText(path, "SELECT count(*) " + table +
                                    " WHERE \"##Uid\" IS NULL OR length(\"##Uid\")<>16"),
                  "0")
            << each.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Files, HandWrittenUpgrades, testing::ValuesIn(HandWrittenFiles()),
                         [](testing::TestParamInfo<std::string> const& file) {
                             return NameOf(file.param);
                         });

TEST(HandWrittenDatabases, HoldARowOfEveryOldClass) {
    Folder const folder;
    std::set<std::pair<unsigned, int>> held;
    for (std::string const& file : HandWrittenFiles()) {
        std::string const path = folder.File(NameOf(file) + ".nga");
        Sql(path, Contents(file));
        for (StoredClass const& each : ClassesIn(path)) held.insert({each.typeId, each.version});
    }
    std::string missing;
    for (old_test::OldClassFact const& fact : old_test::facts)
        if (held.count({fact.typeId, fact.version}) == 0)
            missing += std::string("\n") + fact.oldName;
    EXPECT_EQ(missing, "");
}

}  // namespace
