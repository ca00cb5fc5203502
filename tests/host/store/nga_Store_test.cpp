#include "nga_Store.h"

#include <fcntl.h>
#include <sys/stat.h>

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

TEST_F(StoredModel, IsWrittenByteForByteTheSameAgain) {
    auto const model = MakeModel(20);
    nga::SaveModel(*model, folder.File("a.nga"));
    nga::SaveModel(*nga::LoadModel(folder.File("a.nga")), folder.File("b.nga"));
    EXPECT_TRUE(Contents(folder.File("a.nga")) == Contents(folder.File("b.nga")));
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
        std::unique_ptr<kmaC_Material> const made(MakeMaterial(17));
        EXPECT_TRUE(kmaC_Material::Description().Same(found.ErasedReferent(), made.get()));
    }
    EXPECT_TRUE(
        nga::ReadNamed(path, repository, cow_String("m50"), kmaC_Material::TypeId()).IsNull());
    EXPECT_TRUE(nga::ReadNamed(path, repository, cow_String(), kmaC_Material::TypeId()).IsNull());
}

}  // namespace
