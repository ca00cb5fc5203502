#include <gtest/gtest.h>

#include <set>

#include "support/OldGenerator.h"

using old_test::Upgraded;

namespace {

class GeneratedChains : public testing::TestWithParam<int> {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static cls_ClassRegistrar const& Current() {
        return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }
    static dbc_OldClassRegistrar const& OldClasses() {
        return omi_Singleton<dbc_OldClassRegistrar>::Instance();
    }

private:
    int m_count = 0;
};

// A database that was taken part of the way is one of that time, and the rest of the way leads to
// the same.
TEST_P(GeneratedChains, InTwoPartsComeToWhatTheyComeToInOne) {
    old_test::OldGenerator generated(GetParam(), 11);
    // What steps left out is completed where they left it, so that it is no matter of chains.
    dbc_UpgradeOptions plain;
    plain.complete = false;
    Upgraded whole(generated.db.Store(), Current(), OldClasses(), plain);
    std::string const expected = old_test::Dump(whole.Store());
    EXPECT_TRUE(dbc_Upgrade::LookAtReferences(whole.Store(), Current()).dangling.empty());
    std::set<int> versions;
    for (old_test::OldClassFact const& fact : old_test::facts)
        if (fact.next > GetParam()) versions.insert(fact.next);
    for (int version : versions) {
        dbc_UpgradeOptions options = plain;
        options.lastVersion = version;
        Upgraded part(generated.db.Store(), Current(), OldClasses(), options);
        Upgraded rest(part.Store(), Current(), OldClasses(), plain);
        // The texts are long; whether they are the same is what counts.
        EXPECT_TRUE(old_test::Dump(rest.Store()) == expected) << version;
    }
}

INSTANTIATE_TEST_SUITE_P(From, GeneratedChains, testing::Values(203, 324, 419, 453, 507, 811, 836, 869, 883, 1022));

}  // namespace
