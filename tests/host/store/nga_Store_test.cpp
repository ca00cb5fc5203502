#include "nga_Store.h"

#include <sys/stat.h>

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>

#include "nga_SqliteDatabase.h"
#include "rom_Transporter.h"
#include "store_support.h"

namespace {

using namespace store_test;

using StoredModel = Store;

TEST_F(StoredModel, ComesBackAsItWas) {
    std::string const path = folder.File("bridge.nga");
    auto const model = MakeModel(100);
    nga::SaveModel(*model, path);
    auto const loaded = nga::LoadModel(path);
    EXPECT_TRUE(loaded->Name() == "bridge");
    EXPECT_TRUE(SameMaterials(*model, *loaded));
    EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(StoredModel, HasTheSameRowsWhenItIsSavedAgain) {
    auto const model = MakeModel(20);
    nga::SaveModel(*model, folder.File("a.nga"));
    nga::SaveModel(*nga::LoadModel(folder.File("a.nga")), folder.File("b.nga"));
    for (std::string const table : {"kmaC_Material", "kmaC_MaterialTable", "kmaC_Elastic",
                                    "kmaC_Density", "kmaC_Expansion", "cls_List", "cls_MapEntry"}) {
        auto const rows = SqlRows(folder.File("a.nga"), table);
        EXPECT_GE(rows.size(), 20u) << table;
        EXPECT_TRUE(rows == SqlRows(folder.File("b.nga"), table)) << table;
    }
}

TEST_F(StoredModel, OfNothingTakesTwoPages) {
    std::string const path = folder.File("empty.nga");
    nga::SaveModel(ddr_Model(cow_String("empty")), path);
    EXPECT_LE(std::filesystem::file_size(path), 32u * 1024);
    EXPECT_EQ(Materials(*nga::LoadModel(path)).Size(), 0);
}

TEST_F(StoredModel, WithAnEmptyRepositoryTakesTwoPages) {
    std::string const path = folder.File("empty.nga");
    ddr_Model model(cow_String("empty"));
    Materials(model);
    nga::SaveModel(model, path);
    EXPECT_LE(std::filesystem::file_size(path), 32u * 1024);
}

TEST_F(StoredModel, OfAHundredMaterialsTakesFourHundredKibibytes) {
    std::string const path = folder.File("hundred.nga");
    nga::SaveModel(*MakeModel(100), path);
    EXPECT_LE(std::filesystem::file_size(path), 400u * 1024);
}

TEST_F(StoredModel, SaysWhatItIsInItsHeader) {
    std::string const path = folder.File("m.nga");
    nga::SaveModel(*MakeModel(1), path);
    EXPECT_EQ(SqlText(path, "PRAGMA application_id"), std::to_string(0x4E474131));
    EXPECT_EQ(SqlText(path, "PRAGMA user_version"), "1111");
    EXPECT_EQ(SqlText(path, "PRAGMA page_size"), "16384");
    EXPECT_EQ(SqlText(path, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(nga::ReadFacts(path).schema, 1111);
    EXPECT_EQ(nga::ReadFacts(path).writer, "nga 0.1.0");
}

TEST_F(StoredModel, GivesOneMaterialByItsName) {
    std::string const path = folder.File("m.nga");
    nga::SaveModel(*MakeModel(50), path);
    cow_String const repository(ddr_Model::materialCmd());
    {
        cow_ErasedHandle const found =
            nga::ReadNamed(path, repository, cow_String("m17"), kmaC_Material::TypeId());
        ASSERT_FALSE(found.IsNull());
        kmaC_MaterialContainer::Handle const made(MakeMaterial(17));
        EXPECT_TRUE(kmaC_Material::Description().Same(found.ErasedReferent(), made.GetPtr()));
    }
    EXPECT_TRUE(
        nga::ReadNamed(path, repository, cow_String("m50"), kmaC_Material::TypeId()).IsNull());
    EXPECT_TRUE(nga::ReadNamed(path, repository, cow_String(), kmaC_Material::TypeId()).IsNull());
}

TEST_F(StoredModel, KeepsWhatIsSharedOneObject) {
    std::string const path = folder.File("m.nga");
    ddr_Model model(cow_String("m"));
    kmaC_MaterialContainer::Handle const steel(MakeMaterial(1));
    Materials(model).Insert("a", steel.ConstGet());
    Materials(model).Insert("b", steel.ConstGet());
    kmaC_Material other(steel.ConstGet());
    other.uid.NewUid();
    Materials(model).Insert("c", other);
    nga::SaveModel(model, path);
    EXPECT_EQ(SqlText(path, "SELECT count(*) FROM kmaC_Material"), "2");
    EXPECT_EQ(SqlText(path, "SELECT count(*) FROM kmaC_Elastic"), "1");
    auto const loaded = nga::LoadModel(path);
    ddr_Model const& read = *loaded;
    auto const* a = Materials(read).ConstGetPtr("a");
    auto const* b = Materials(read).ConstGetPtr("b");
    auto const* c = Materials(read).ConstGetPtr("c");
    EXPECT_EQ(a, b);
    EXPECT_NE(a, c);
    EXPECT_EQ(a->elastic.GetPtr(), c->elastic.GetPtr());
    EXPECT_EQ(SameMaterials(model, read), true);
}

TEST_F(StoredModel, KeepsEveryValueToTheBit) {
    std::string const path = folder.File("m.nga");
    ddr_Model model(cow_String("m"));
    auto* material = new kmaC_Material;
    material->description = cow_String("\xff\x00\x80 not text", 12);
    auto* density = new kmaC_Density;
    double const values[] = {-0.0,
                             5e-324,
                             HUGE_VAL,
                             std::bit_cast<double>(0x7FF0000000000123u),
                             std::bit_cast<double>(0xFFF8000000000456u),
                             DBL_MAX};
    density->table = kmaC_MaterialTable(6, 1);
    for (int i = 0; i < 6; ++i) density->table.MutableCell(i, 0) = values[i];
    material->density = density;
    auto* expansion = new kmaC_Expansion;
    expansion->zero = std::bit_cast<double>(0x7FF8000000000789u);
    expansion->dependencies = INT_MIN;
    material->expansion = expansion;
    Materials(model).Insert("", material);
    nga::SaveModel(model, path);
    auto const loaded = nga::LoadModel(path);
    auto const* read = Materials(static_cast<ddr_Model const&>(*loaded)).ConstGetPtr("");
    ASSERT_NE(read, nullptr);
    EXPECT_TRUE(read->description == material->description);
    EXPECT_EQ(read->description.Length(), 12);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read->density.ConstGet().table.Cell(i, 0)),
                  std::bit_cast<std::uint64_t>(values[i]));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(read->expansion.ConstGet().zero), 0x7FF8000000000789u);
    EXPECT_EQ(read->expansion.ConstGet().dependencies, INT_MIN);
    EXPECT_EQ(read->elastic.GetPtr(), nullptr);
}

TEST_F(StoredModel, HasNoClassAboveTheSchemaNumberOfItsFiles) {
    for (cls_ClassMetadata const* metadata :
         omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes())
        EXPECT_LE(metadata->Version(), nga::currentSchema) << metadata->Name().Text();
}

TEST_F(StoredModel, HasATableForEveryClassThereIs) {
    std::string const path = folder.File("all.nga");
    Overwrite(path, "");
    auto const database = nga::SqliteDatabase::Build(path);
    for (cls_ClassMetadata const* metadata :
         omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes())
        database->CreateTable(rom_Layout::OfClass(*metadata));
    database->Finish();
}

TEST_F(StoredModel, SurvivesTheShellsVacuumAndDump) {
    std::string const path = folder.File("m.nga");
    auto const model = MakeModel(10);
    nga::SaveModel(*model, path);
    Sql(path, "VACUUM");
    EXPECT_TRUE(SameMaterials(*nga::LoadModel(path), *model));
    Sql(path, "VACUUM INTO '" + folder.File("n.nga") + "'");
    EXPECT_TRUE(SameMaterials(*nga::LoadModel(folder.File("n.nga")), *model));
}

}  // namespace
