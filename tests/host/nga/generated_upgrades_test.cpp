#include <gtest/gtest.h>

#include <set>

#include "nga_Collection.h"
#include "nga_Start.h"
#include "nga_Store.h"
#include "nga_UpgradeFile.h"
#include "support/OldFile.h"
#include "support/OldGenerator.h"

using old_test::ReadEveryRow;
using store_test::Folder;

namespace {

/// The numbers at which a layout changed, the one before each, and the current one.
std::set<int> Schemas() {
    std::set<int> schemas = {nga::currentSchema};
    for (old_test::OldClassFact const& fact : old_test::facts)
        for (int version : {fact.version, fact.next}) {
            if (version == 0 || version > nga::currentSchema) continue;
            schemas.insert(version);
            if (version > nga::oldestSchema) schemas.insert(version - 1);
        }
    return schemas;
}

std::vector<std::string> NamesIn(ddr_Model const& model, char const* repository) {
    std::vector<std::string> names;
    nga::Collection::FindByName(repository)->Each(model, [&](cow_String const& key, void const*) {
        names.emplace_back(key.Text());
    });
    return names;
}

class GeneratedUpgrades : public testing::TestWithParam<int> {
protected:
    void SetUp() override { nga::Start(); }
};

TEST_P(GeneratedUpgrades, LeaveEveryObjectUnderItsName) {
    int const schema = GetParam();
    Folder folder;
    std::string const path = folder.File("generated.nga");
    old_test::OldGenerator generated(schema, static_cast<unsigned>(schema));
    old_test::WriteFile(generated.db.Store(), path, schema);
    nga::UpgradedFile result;
    try {
        result = nga::UpgradeFile(path);
    } catch (nga::StoreError const& error) {
        FAIL() << error.Cause();
    }
    for (dbc_DanglingReport const& each : result.report.references.dangling)
        ADD_FAILURE() << each.className << "." << each.field << " row " << each.firstRow;
    for (nga::UnreadableObject const& object : nga::FindUnreadable(path))
        ADD_FAILURE() << object.collection << " " << object.name << ": " << object.cause;
    std::unique_ptr<ddr_Model> const model = nga::LoadModel(path);
    for (auto const& [repository, names] : generated.names)
        EXPECT_EQ(NamesIn(*model, repository.c_str()), names) << repository;
    EXPECT_TRUE(nga::UpgradeFile(path).current);
    ReadEveryRow(path);
    // Each connector behaviour is a row of its class of today.
    if (schema < 453) return;
    int connectors = 0;
    for (char const* name :
         {"Elasticity", "Damping", "Stop", "Lock", "Failure", "Friction", "Plasticity", "Damage"})
        connectors += std::stoi(
            store_test::SqlText(path, std::string("SELECT count(*) FROM kbeC_Connector") + name));
    EXPECT_EQ(connectors, generated.connectors);
}

INSTANTIATE_TEST_SUITE_P(AtEachSchema, GeneratedUpgrades, testing::ValuesIn(Schemas()));

}  // namespace
