#include "nga_Document.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "../cli/tool_runner.h"
#include "cls_MetadataRegistrar.h"
#include "nga_Collection.h"
#include "nga_Error.h"
#include "nga_HostExtension.h"
#include "nga_Json.h"
#include "nga_Store.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"

using nga::Document;

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

TEST(Document, SavingRefusesAFileThatChangedMeanwhile) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("shared.nga");
    Document::New("shared").SaveAs(file);
    Document mine = Document::Open(file);
    Document theirs = Document::Open(file);
    theirs.Materials().Insert("steel", new kmaC_Material);
    theirs.Save();
    theirs.Materials().Insert("copper", new kmaC_Material);
    EXPECT_NO_THROW(theirs.Save());
    EXPECT_THROW(mine.Save(), nga::StoreError);
    EXPECT_TRUE(Document::Open(file).Materials().IsMember("copper"));
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
