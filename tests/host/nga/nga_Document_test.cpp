#include "nga_Document.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <filesystem>
#include <fstream>

#include "../cli/tool_runner.h"
#include "cls_MetadataRegistrar.h"
#include "mem_Memory.h"
#include "nga_Collection.h"
#include "nga_Error.h"
#include "nga_HostExtension.h"
#include "nga_Json.h"
#include "nga_Store.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"

using nga::Document;

namespace {

/// Runs SQL on a file past the store; the last number that it gives.
int ChangeBySql(std::string const& file, std::string const& sql) {
    sqlite3* database = nullptr;
    int number = -1;
    EXPECT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    auto const take = [](void* result, int, char** values, char**) {
        *static_cast<int*>(result) = values[0] ? std::stoi(values[0]) : -1;
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), take, &number, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    sqlite3_close(database);
    return number;
}
int RowsOf(std::string const& file, std::string const& table) {
    return ChangeBySql(file, "SELECT count(*) FROM " + table);
}

}  // namespace

TEST(Document, ANewOneIsEmptyAndHasNoFile) {
    Document const document = Document::New("frame");
    EXPECT_EQ(document.Name(), "frame");
    EXPECT_EQ(document.File(), "");
    EXPECT_TRUE(document.Materials().IsEmpty());
    EXPECT_TRUE(document.LoadCases().IsEmpty());
}

TEST(Document, SeveralStandBesideEachOther) {
    Document a = Document::New("a");
    Document b = Document::New("b");
    a.Materials().Insert("steel", new kmaC_Material);
    a.LoadCases().Insert("wind", new klcC_LoadCase);
    EXPECT_TRUE(b.Materials().IsEmpty());
    EXPECT_TRUE(b.LoadCases().IsEmpty());
    Document const moved = std::move(a);
    EXPECT_TRUE(moved.Materials().IsMember("steel"));
}

TEST(Document, ANameThatNoPathCanShowIsRefused) {
    EXPECT_THROW(Document::New("it's"), nga::Error);
    EXPECT_THROW(Document::New(""), nga::Error);
}

TEST(Document, SavingWithoutAFileSaysThatAPathIsMissing) {
    Document document = Document::New("frame");
    EXPECT_THROW(document.Save(), nga::Error);
}

TEST(Document, AFileHoldsMaterialsAndLoadCasesAndNamesTheDocument) {
    TemporaryFolder const folder;
    Document document = Document::New("draft");
    nga::ImportJson(document, FileContent(NGA_EXAMPLES "/bracket.json"));
    std::string const text = nga::ExportJson(document);
    document.SaveAs(folder.Path("bracket.nga"));
    EXPECT_EQ(document.Name(), "bracket");
    EXPECT_EQ(document.File(), folder.Path("bracket.nga"));
    Document const again = Document::Open(folder.Path("bracket.nga"));
    EXPECT_EQ(again.Name(), "bracket");
    EXPECT_EQ(nga::ExportJson(again), text);
    for (auto const* collection : nga::Collection::All())
        collection->Each(again.Model(), [&](cow_String const& key, void const* object) {
            mdl_Description const* description =
                mdl_Description::Find(collection->DynTypeIdOf(object));
            ASSERT_NE(description, nullptr);
            EXPECT_TRUE(description->Same(object, collection->Find(document.Model(), key)));
        });
}

TEST(Document, LookingAtADocumentPutsNothingIntoItsFile) {
    TemporaryFolder const folder;
    Document document = Document::New("empty");
    document.SaveAs(folder.Path("empty.nga"));
    Document looked = Document::Open(folder.Path("empty.nga"));
    EXPECT_TRUE(looked.Materials().IsEmpty());
    EXPECT_TRUE(looked.LoadCases().IsEmpty());
    looked.SaveAs(folder.Path("looked.nga"));
    EXPECT_EQ(std::filesystem::file_size(folder.Path("looked.nga")),
              std::filesystem::file_size(folder.Path("empty.nga")));
    EXPECT_LE(std::filesystem::file_size(folder.Path("empty.nga")), 32u * 1024);
}

TEST(Document, SaveRefusesAFileThatChangedSinceItWasOpened) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("shared.nga");
    Document::New("shared").SaveAs(file);
    Document mine = Document::Open(file);
    Document theirs = Document::Open(file);
    theirs.Materials().Insert("steel", new kmaC_Material);
    theirs.Save();
    theirs.Materials().Insert("copper", new kmaC_Material);
    EXPECT_NO_THROW(theirs.Save());
    std::string const bytes = FileContent(file);
    EXPECT_THROW(mine.Save(), nga::StoreError);
    // Still so at a second try, and once the file is gone.
    EXPECT_THROW(mine.Save(), nga::StoreError);
    EXPECT_EQ(FileContent(file), bytes);
    std::filesystem::remove(file);
    EXPECT_THROW(mine.Save(), nga::StoreError);
    EXPECT_FALSE(std::filesystem::exists(file));
    theirs.SaveAsNew(file);
    EXPECT_TRUE(Document::Open(file).Materials().IsMember("copper"));
}

TEST(Document, ASecondSaveAfterTheFirstIsNotRefused) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("mine.nga");
    Document::New("mine").SaveAs(file);
    Document opened = Document::Open(file);
    for (char const* name : {"a", "b", "c"}) {
        opened.Materials().Insert(name, new kmaC_Material);
        EXPECT_NO_THROW(opened.Save()) << name;
    }
    opened.SaveAs(folder.Path("other.nga"));
    opened.Materials().Insert("d", new kmaC_Material);
    EXPECT_NO_THROW(opened.Save());
    EXPECT_EQ(Document::Open(folder.Path("other.nga")).Materials().Size(), 4);
    EXPECT_EQ(Document::Open(file).Materials().Size(), 3);
}

namespace {

std::string newcomer;
// Called at the library's allocations, of which a save makes some: so that something happens in the
// midst of it.
bool MakeNewcomer(std::size_t) {
    if (!newcomer.empty()) std::ofstream(newcomer) << "theirs";
    newcomer.clear();
    return false;
}

}  // namespace

TEST(Document, SaveAsDoesNotReplaceAFileThatAppearedMeanwhile) {
    TemporaryFolder const folder;
    Document document = Document::New("document");
    document.Materials().Insert("steel", new kmaC_Material);
    std::string const file = folder.Path("taken.nga");
    newcomer = file;
    mem_SetFailureHook(MakeNewcomer);
    EXPECT_THROW(document.SaveAs(file), nga::StoreError);
    mem_SetFailureHook(nullptr);
    EXPECT_TRUE(newcomer.empty());
    EXPECT_EQ(FileContent(file), "theirs");
    EXPECT_EQ(document.Name(), "document");
    EXPECT_EQ(document.File(), "");
    // What stands there at the call is meant to be replaced.
    document.SaveAs(file);
    EXPECT_TRUE(Document::Open(file).Materials().IsMember("steel"));
}

TEST(Document, ImportingNothingKeepsAFileAsSmallAsANewOne) {
    TemporaryFolder const folder;
    Document document = Document::New("nothing");
    nga::ImportJson(document, "{}");
    document.Materials();
    document.LoadCases();
    document.SaveAs(folder.Path("nothing.nga"));
    EXPECT_LE(std::filesystem::file_size(folder.Path("nothing.nga")), 32u * 1024);
}

TEST(Document, ANameWithoutAnObjectIsNeitherSavedNorRead) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("holes.nga");
    Document document = Document::New("holes");
    document.Materials().Insert("steel", new kmaC_Material);
    document.LoadCases().Insert("wind", new klcC_LoadCase);
    document.SaveAs(file);
    std::string const bytes = FileContent(file);
    document.Materials().Insert("hole", static_cast<kmaC_Material*>(nullptr));
    EXPECT_THROW(document.Save(), nga::Error);
    EXPECT_EQ(FileContent(file), bytes);

    for (std::string const key : {"steel", "wind"}) {
        std::string const damaged = folder.Write("damaged.nga", bytes);
        ChangeBySql(damaged,
                    "UPDATE cls_MapEntry SET \"value#ClassID\"=NULL, "
                    "\"value#OID\"=NULL WHERE key='" +
                        key + "'");
        try {
            Document::Open(damaged);
            ADD_FAILURE() << key;
        } catch (nga::StoreError const& failure) {
            EXPECT_EQ(failure.Cause(), (key == "steel" ? "materials" : "loadCases") +
                                           ("['" + key + "'] is a name without an object"));
        }
    }
}

TEST(Document, SavingAsNewRefusesAPresentFile) {
    TemporaryFolder const folder;
    std::string const file = folder.Write("taken.nga", "something");
    EXPECT_THROW(Document::New("document").SaveAsNew(file), nga::StoreError);
    EXPECT_EQ(FileContent(file), "something");
}

TEST(Document, OpeningTouchesNothing) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("bracket.nga");
    Document document = Document::New("bracket");
    document.Materials().Insert("steel", new kmaC_Material);
    document.SaveAs(file);
    std::string const bytes = FileContent(file);
    auto const time = std::filesystem::last_write_time(file);
    Document::Open(file);
    EXPECT_EQ(FileContent(file), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(file), time);
}

TEST(Document, SharedOptionsComeBackShared) {
    TemporaryFolder const folder;
    Document document = Document::New("shared");
    auto* steel = new kmaC_Material;
    steel->density = new kmaC_Density;
    document.Materials().Insert("a", steel);
    document.Materials().Insert("b", document.Materials().ConstGet("a"));
    document.SaveAs(folder.Path("shared.nga"));
    Document const again = Document::Open(folder.Path("shared.nga"));
    EXPECT_EQ(again.Materials().ConstGet("a").density.GetPtr(),
              again.Materials().ConstGet("b").density.GetPtr());
    EXPECT_NE(&again.Materials().ConstGet("a"), &again.Materials().ConstGet("b"));
}

namespace {

/// Each way in which a second name can come by a copy of load case "a".
struct LoadCaseWay {
    char const* name;
    void (*copy)(klcC_LoadCaseCont& cases);
};
LoadCaseWay const loadCaseWays[] = {
    {"InsertByValue", [](klcC_LoadCaseCont& c) { c.Insert("b", c.ConstGet("a")); }},
    {"InsertOfTheOneThatIsWritten", [](klcC_LoadCaseCont& c) { c.Insert("b", c.Get("a")); }},
    {"InsertOfACopy",
     [](klcC_LoadCaseCont& c) { c.Insert("b", new klcC_LoadCase(c.ConstGet("a"))); }},
    {"Assignment",
     [](klcC_LoadCaseCont& c) {
         c.Insert("b", new klcC_LoadCase);
         c.Get("b") = c.ConstGet("a");
     }},
    {"CopyOfTheTree",
     [](klcC_LoadCaseCont& c) {
         klcC_LoadCaseCont const kept = c;
         c.Insert("b", kept.ConstGet("a"));
     }},
    {"AssignmentOfTheTree",
     [](klcC_LoadCaseCont& c) {
         klcC_LoadCaseCont other;
         other = c;
         other.Insert("b", other.ConstGet("a"));
         c = other;
     }},
};

}  // namespace

TEST(Document, LoadCasesThatWereCopiedAndChangedApartComeBackApart) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("cases.nga");
    for (LoadCaseWay const& way : loadCaseWays) {
        Document document = Document::New("cases");
        nga::ImportJson(document, "{\"loadCases\": {\"a\": {\"loads\": {\"x\": 1.5}}}}");
        way.copy(document.LoadCases());
        nga::ImportJson(document, "{}");
        document.LoadCases().Get("b").loads.Insert("y", 2.5f);
        std::string const before = nga::ExportJson(document);
        EXPECT_EQ(document.LoadCases().ConstGet("a").loads.Size(), 1) << way.name;
        document.SaveAs(file);
        Document const again = Document::Open(file);
        EXPECT_EQ(nga::ExportJson(again), before) << way.name;
        EXPECT_EQ(again.LoadCases().ConstGet("a").loads.Size(), 1) << way.name;
        EXPECT_EQ(again.LoadCases().ConstGet("b").loads.Size(), 2) << way.name;
    }
}

TEST(Document, WhatIsSharedIsOneRecordOfItsFile) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("shared.nga");
    Document document = Document::New("shared");
    nga::ImportJson(document, "{\"materials\": {\"a\": {\"elastic\": {\"table\": [[1, 2]]}}}}");
    for (char const* name : {"b", "c", "d"})
        document.Materials().Insert(name, document.Materials().ConstGet("a"));
    document.SaveAs(file);
    EXPECT_EQ(RowsOf(file, "kmaC_Elastic"), 1);
    EXPECT_EQ(RowsOf(file, "kmaC_Material"), 4);
    document.Materials().Get("c").elastic.Get().table.MutableCell(0, 0) = 5;
    document.Save();
    EXPECT_EQ(RowsOf(file, "kmaC_Elastic"), 2);
    Document again = Document::Open(file);
    EXPECT_EQ(again.Materials().ConstGet("a").elastic.ConstGet().table.Cell(0, 0), 1);
    EXPECT_EQ(again.Materials().ConstGet("c").elastic.ConstGet().table.Cell(0, 0), 5);
    // Shared as they came back, they are still copies of their own to whoever writes.
    again.Materials().Get("d").elastic.Get().table.MutableCell(0, 1) = 7;
    EXPECT_EQ(again.Materials().ConstGet("a").elastic.ConstGet().table.Cell(0, 1), 2);
    again.Save();
    EXPECT_EQ(nga::ExportJson(Document::Open(file)), nga::ExportJson(again));
}

TEST(Document, TheStemOfAPathIsItsLastPartWithoutTheEnding) {
    EXPECT_EQ(Document::StemOf("parts/bracket.nga"), "bracket");
    EXPECT_EQ(Document::StemOf("bracket.v2.nga"), "bracket.v2");
    EXPECT_EQ(Document::StemOf("bracket"), "bracket");
}

TEST(HostExtension, IsRegisteredForDatabasesAlone) {
    Document const document = Document::New("frame");
    unsigned const typeId = nga::HostExtension::TypeId();
    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    cls_ClassMetadata const* metadata = registrar.Domain(cls_DomainDatabase).Find(typeId);
    ASSERT_NE(metadata, nullptr);
    EXPECT_EQ(metadata->ParentTypeId(), mdl_Extension::TypeId());
    ASSERT_EQ(metadata->Attributes().size(), 1u);
    EXPECT_STREQ(metadata->Attributes()[0].field.Name().Text(), "loadCases");
    EXPECT_EQ(metadata->Attributes()[0].type, cls_AttributeObject);
    EXPECT_EQ(metadata->Attributes()[0].collection, cls_CollectionMapString);
    EXPECT_EQ(registrar.Domain(cls_DomainLibrary).Find(typeId), nullptr);
    EXPECT_EQ(registrar.Domain(cls_DomainMemory).Find(typeId), nullptr);
    EXPECT_STREQ(typ_ArchCompTable::GetName(typeId), "nga_HostExtension");
    EXPECT_TRUE(typ_ArchCompTable::IsParent(typeId, mdl_Extension::TypeId()));
}

TEST(HostExtension, EachDocumentsOwnIsARecordOfItsOwn) {
    Document a = Document::New("a");
    Document b = Document::New("b");
    cow_String const name(nga::HostExtension::extensionCmd());
    auto const& ofA = static_cast<nga::HostExtension const&>(a.Model().ConstGetExtension(name));
    auto const& ofB = static_cast<nga::HostExtension const&>(b.Model().ConstGetExtension(name));
    EXPECT_NE(ofA.Uid(), ofB.Uid());
    EXPECT_TRUE(ofA.IsEmpty());
}

namespace {

/// Two materials that share their elasticity, of which the second has lost its name.
std::string MakeFileWithUnnamed(TemporaryFolder const& folder) {
    std::string const file = folder.Path("unnamed.nga");
    Document document = Document::New("unnamed");
    auto* steel = new kmaC_Material;
    steel->elastic = new kmaC_Elastic;
    steel->elastic.Get().table = kmaC_MaterialTable(1, 1);
    steel->elastic.Get().table.MutableCell(0, 0) = 210e3;
    auto* other = new kmaC_Material(*steel);
    document.Materials().Insert("a", steel);
    document.Materials().Insert("b", other);
    document.SaveAs(file);
    EXPECT_EQ(RowsOf(file, "kmaC_Elastic"), 1);
    ChangeBySql(file,
                "UPDATE cls_MapEntry SET owner=-1 WHERE key='b';"
                "UPDATE cls_Map SET \"#Count\"=1");
    return file;
}

}  // namespace

TEST(Document, WhatNoNameLeadsToGoesAlongWithEverySave) {
    TemporaryFolder const folder;
    std::string const file = MakeFileWithUnnamed(folder);
    for (int round = 1; round <= 3; ++round) {
        Document document = Document::Open(file);
        EXPECT_EQ(document.Materials().Size(), 1);
        ASSERT_EQ(document.Unnamed().objects.size(), 1u);
        nga::Leftovers::Object const& unnamed = document.Unnamed().objects.front();
        EXPECT_EQ(unnamed.typeId, kmaC_Material::TypeId());
        auto const* other = static_cast<kmaC_Material const*>(unnamed.object.ErasedReferent());
        // What the named one shared with it stays as it was.
        EXPECT_EQ(other->elastic.ConstGet().table.Cell(0, 0), 210e3);
        EXPECT_EQ(document.Materials().ConstGet("a").elastic.ConstGet().table.Cell(0, 0),
                  round == 1 ? 210e3 : 70e3);
        document.Materials().Get("a").elastic.Get().table.MutableCell(0, 0) = 70e3;
        document.Save();
        EXPECT_EQ(RowsOf(file, "kmaC_Material"), 2);
        EXPECT_EQ(RowsOf(file, "kmaC_Elastic"), 2);
        EXPECT_EQ(RowsOf(file, "cls_List"), 2);
    }
    ToolRun const tree = RunNga({"tree", file});
    EXPECT_EQ(tree.err, "no name leads to 1 object more, which the file keeps\n");
    // A copy of the file's content has it as well, a text does not.
    Document document = Document::Open(file);
    document.SaveAs(folder.Path("copy.nga"));
    EXPECT_EQ(Document::Open(folder.Path("copy.nga")).Unnamed().objects.size(), 1u);
    EXPECT_EQ(nga::ExportJson(document).find("\"b\""), std::string::npos);
}

TEST(Document, APartOfWhatNoNameLeadsToIsNotListedByItself) {
    TemporaryFolder const folder;
    std::string const file = MakeFileWithUnnamed(folder);
    // Without the named one, the elasticity is the unnamed one's alone.
    ChangeBySql(file,
                "UPDATE cls_MapEntry SET owner=-1;UPDATE cls_Map SET \"#Count\"=0;"
                "DELETE FROM kmaC_Material WHERE \"##OID\"=1");
    Document const document = Document::Open(file);
    ASSERT_EQ(document.Unnamed().objects.size(), 1u);
    EXPECT_EQ(document.Unnamed().objects.front().typeId, kmaC_Material::TypeId());
}

TEST(Document, WhatNoNameLeadsToAndCannotBeReadKeepsTheFileFromBeingSaved) {
    TemporaryFolder const folder;
    std::string const file = MakeFileWithUnnamed(folder);
    ChangeBySql(file, "UPDATE kmaC_Material SET \"elastic#OID\"=7 WHERE \"##OID\"=1");
    Document document = Document::Open(file);
    EXPECT_EQ(document.Unnamed().objects.size(), 0u);
    ASSERT_EQ(document.Unnamed().unreadable.size(), 1u);
    EXPECT_EQ(document.Unnamed().unreadable.front(),
              "row 1 of table kmaC_Material: Row 7 of table kmaC_Elastic is referred to and does "
              "not exist.");
    try {
        document.Save();
        FAIL();
    } catch (nga::Error const& failure) {
        EXPECT_EQ(failure.Place(), document.Unnamed().unreadable.front());
        EXPECT_EQ(
            failure.Message(),
            "the file has an object that no name leads to and that cannot be read, and saving "
            "would lose it");
    }
    EXPECT_EQ(RowsOf(file, "kmaC_Material"), 2);
    EXPECT_NE(RunNga({"tree", file}).err.find("1 object more"), std::string::npos);
}
