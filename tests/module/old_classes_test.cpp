#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "DDB_NonGeometricAttributes.h"
#include "dbc_OldClass.h"
#include "module/OldClassFacts.h"
#include "support/OldDatabase.h"

using old_test::facts;
using old_test::OldClassFact;

namespace {

std::set<std::pair<std::string, int>> ColumnsOf(rfm_TableMetadata const& layout) {
    std::set<std::pair<std::string, int>> columns;
    for (rfm_Column const& column : layout.Columns())
        columns.emplace(column.name.Text(), static_cast<int>(column.kind));
    return columns;
}

class OldClasses : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    static std::map<std::string, dbc_OldClassRegistrar::Entry> Registered() {
        std::map<std::string, dbc_OldClassRegistrar::Entry> result;
        for (auto const& entry : omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries()) {
            auto const* old = dynamic_cast<dbc_OldClassOfTable const*>(&entry.holder->GetRef());
            if (old) result.emplace(old->Row().oldName, entry);
        }
        return result;
    }

private:
    int m_count = 0;
};

TEST_F(OldClasses, AreRegisteredByTheirModulesWithTheirMasks) {
    auto const registered = Registered();
    EXPECT_EQ(registered.size(), std::size(facts));
    std::map<std::string, int> ofModule;
    for (OldClassFact const& fact : facts) {
        ++ofModule[std::string(fact.name).substr(0, 3)];
        auto const entry = registered.find(fact.oldName);
        ASSERT_NE(entry, registered.end()) << fact.oldName;
        EXPECT_EQ(entry->second.mask, fact.mask) << fact.oldName;
    }
    EXPECT_EQ(ofModule["kma"], 43);
    EXPECT_EQ(ofModule["kfl"], 1);
    EXPECT_EQ(ofModule["kbp"], 7);
    EXPECT_EQ(ofModule["kam"], 7);
    EXPECT_EQ(ofModule["kbe"], 27);
}

TEST_F(OldClasses, EnterTheirLayouts) {
    auto const registered = Registered();
    for (OldClassFact const& fact : facts) {
        cls_ClassRegistrar registrar;
        registered.at(fact.oldName).holder->GetRef().InitializeMetadata(registrar);
        cls_ClassMetadata const* const metadata = registrar.Find(fact.typeId);
        ASSERT_TRUE(metadata) << fact.oldName;
        EXPECT_EQ(metadata->Name(), fact.name) << fact.oldName;
        EXPECT_EQ(metadata->Version(), fact.version) << fact.oldName;
        EXPECT_EQ(metadata->ParentTypeId(), fact.parent) << fact.oldName;
        EXPECT_FALSE(metadata->HasCtor()) << fact.oldName;
        EXPECT_EQ(ColumnsOf(rom_Layout::OfClass(*metadata)),
                  ColumnsOf(old_test::Layout(fact.typeId, fact.name, fact.version, fact.parent,
                                             fact.fields)))
            << fact.oldName;
    }
}

TEST_F(OldClasses, DeclareTheirStepsOrTheirEnd) {
    auto const registered = Registered();
    for (OldClassFact const& fact : facts) {
        rfm_MemoryDatabase original, work;
        cls_ClassRegistrar none;
        dbc_DatabaseConverter converter(original, work, none);
        dbc_OldClassVersion const& old = registered.at(fact.oldName).holder->GetRef();
        old.SchemaChanges(converter);
        old.ClassesToDelete(converter);
        old.ClassesToRename(converter);
        if (fact.next == 0) {
            EXPECT_TRUE(converter.Steps().empty()) << fact.oldName;
            ASSERT_EQ(converter.DeletedClasses().Size(), 1) << fact.oldName;
            EXPECT_EQ(converter.DeletedClasses().ConstGet(0), fact.typeId) << fact.oldName;
        } else {
            EXPECT_EQ(converter.DeletedClasses().Size(), 0) << fact.oldName;
            ASSERT_EQ(converter.Steps().size(), 1u) << fact.oldName;
            auto const& [version, step] = *converter.Steps().begin();
            EXPECT_EQ(version, fact.next) << fact.oldName;
            ASSERT_EQ(step.Classes().count(fact.typeId), 1u) << fact.oldName;
            dbc_Converter::Class const& declared = step.Classes().at(fact.typeId);
            EXPECT_EQ(declared.name, fact.name) << fact.oldName;
            EXPECT_EQ(declared.oldVersion, fact.version) << fact.oldName;
            EXPECT_EQ(declared.converter.Conversion() != nullptr, fact.convert) << fact.oldName;
            EXPECT_EQ(declared.converter.Finalize() != nullptr, fact.finalize) << fact.oldName;
        }
        cow_String const* const newName = converter.ClassNames().ConstFind(cow_String(fact.name));
        EXPECT_STREQ(newName ? newName->Text() : "", fact.newName) << fact.oldName;
    }
}

// Steps lead from layout to layout without a gap, up to the class as it is now or its end.
TEST_F(OldClasses, ChainUpToTheLastLayout) {
    for (OldClassFact const& fact : facts) {
        if (fact.next == 0) continue;
        bool const last = std::none_of(std::begin(facts), std::end(facts), [&](auto const& other) {
            return other.typeId == fact.typeId && other.version > fact.version;
        });
        bool const meets = std::any_of(std::begin(facts), std::end(facts), [&](auto const& other) {
            return other.typeId == fact.typeId && other.version == fact.next;
        });
        EXPECT_NE(last, meets) << fact.oldName;
    }
}

}  // namespace
