#include <gtest/gtest.h>

#include <set>

#include "nga_Collection.h"
#include "nga_Start.h"
#include "nga_Store.h"
#include "nga_Upgrade.h"
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
    Folder folder;

    /// Upgrades a database and looks for all that it made.
    nga::UpgradeOutcome ExpectAllUnderItsName(old_test::OldGenerator& generated) {
        int const schema = GetParam();
        std::string const path = folder.File("generated.nga");
        old_test::WriteFile(generated.db.Store(), path, schema);
        nga::UpgradeOutcome outcome;
        try {
            outcome = nga::Upgrade(path);
        } catch (nga::StoreError const& error) {
            ADD_FAILURE() << error.Cause();
            return outcome;
        }
        for (dbc_DanglingReport const& each : outcome.file.report.references.dangling)
            ADD_FAILURE() << each.className << "." << each.field << " row " << each.firstRow;
        for (nga::Finding const& each : outcome.unreadable)
            ADD_FAILURE() << each.path << ": " << each.message;
        nga::Document const document = nga::Document::Open(path);
        for (auto const& [repository, names] : generated.names)
            EXPECT_EQ(NamesIn(document.Model(), repository.c_str()), names) << repository;
        EXPECT_TRUE(nga::UpgradeFile(path).current);
        ReadEveryRow(path);
        // Each connector behaviour is a row of its class of today.
        if (schema < 453) return outcome;
        int connectors = 0;
        for (char const* name : {"Elasticity", "Damping", "Stop", "Lock", "Failure", "Friction",
                                 "Plasticity", "Damage"})
            connectors += std::stoi(store_test::SqlText(
                path, std::string("SELECT count(*) FROM kbeC_Connector") + name));
        EXPECT_EQ(connectors, generated.connectors);
        return outcome;
    }
};

TEST_P(GeneratedUpgrades, LeaveEveryObjectValidUnderItsName) {
    old_test::OldGenerator generated(GetParam(), static_cast<unsigned>(GetParam()));
    for (nga::Finding const& each : ExpectAllUnderItsName(generated).findings)
        ADD_FAILURE() << each.path << ": " << each.message;
}

/// At some schemas, for time.
class UpgradesWithGaps : public GeneratedUpgrades {
public:
    static std::vector<int> Some() {
        std::vector<int> some;
        for (int schema : Schemas())
            if (some.empty() || schema > some.back() + 20) some.push_back(schema);
        return some;
    }
};

TEST_P(UpgradesWithGaps, LeaveEveryObjectUnderItsName) {
    old_test::OldGenerator generated(GetParam(), static_cast<unsigned>(GetParam()) * 7,
                                     old_test::OldGenerator::Fields::Some);
    ExpectAllUnderItsName(generated);
}

INSTANTIATE_TEST_SUITE_P(AtSchemas, UpgradesWithGaps, testing::ValuesIn(UpgradesWithGaps::Some()));
INSTANTIATE_TEST_SUITE_P(AtEachSchema, GeneratedUpgrades, testing::ValuesIn(Schemas()));

}  // namespace
