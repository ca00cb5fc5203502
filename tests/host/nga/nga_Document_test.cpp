#include "nga_Document.h"

#include <gtest/gtest.h>

#include "cls_MetadataRegistrar.h"
#include "nga_Error.h"
#include "nga_HostExtension.h"
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
