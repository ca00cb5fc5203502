#include "ShortcutFixture.h"

namespace kflC_Shortcut_test {

using InContainer = kflC_FilterInFilterContainerShortcut;

class FilterShortcut : public ShortcutFixture {
protected:
    FilterShortcut() {
        Filters().Insert("a", kflC_ButterworthFilter());
        Changes();
    }
    kflC_FilterContainer& Filters() {
        return static_cast<kflC_FilterContainer&>(
            model.GetExtension(ddr_Model::filterCmd()).GetValue());
    }
    static kflC_FilterContainerShortcut ToFilters() {
        return kflC_FilterContainerShortcut(
            new kflC_FilterContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    }
    static kflC_FilterShortcut ToFilter(cow_String const& name) {
        return kflC_FilterShortcut(new InContainer(ToFilters(), name));
    }
};

TEST_F(FilterShortcut, PathsAreScriptExpressions) {
    EXPECT_STREQ(ToFilters().Path().Text(), "documents['bridge'].filters");
    EXPECT_STREQ(ToFilters().Name().Text(), "filters");
    EXPECT_STREQ(ToFilter("a").Path().Text(), "documents['bridge'].filters['a']");
    EXPECT_STREQ(ToFilter("a").Name().Text(), "a");
}

TEST_F(FilterShortcut, StepsHaveTheirTypes) {
    EXPECT_EQ(kflC_FilterShortcut::TypeId(), 0x3510007u);
    EXPECT_EQ(InContainer::TypeId(), 0x3510008u);
    EXPECT_EQ(kflC_FilterIMPLSC::TypeId(), 0x3510009u);
    EXPECT_EQ(kflC_FilterContainerShortcut::TypeId(), 0x351000Au);
    EXPECT_EQ(kflC_FilterContainerIMPLSC::TypeId(), 0x351000Bu);
    EXPECT_EQ(kflC_FilterContainerInModelShortcut::TypeId(), 0x351000Cu);
}

TEST_F(FilterShortcut, ReachesTheRepositoryAndItsEntries) {
    EXPECT_EQ(&ToFilters().ConstGet(session), &Filters());
    EXPECT_EQ(&ToFilter("a").ConstGet(session), Filters().ConstGetPtr("a"));
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(&ToFilter("a").Get(session), Filters().ConstGetPtr("a"));
    EXPECT_EQ(Changes(), 1u);
}

TEST_F(FilterShortcut, AMissingKeyIsRefusedBeforeTheRepositoryIsTouched) {
    Access const reading = AccessFailureOf([&] { ToFilter("gone").ConstGet(session); });
    EXPECT_EQ(reading.key, "gone");
    EXPECT_EQ(reading.file, "generated/include/ddr_Shortcut");
    EXPECT_EQ(reading.line, 109);
    Access const writing = AccessFailureOf([&] { ToFilter("gone").Get(session); });
    EXPECT_EQ(writing.key, "gone");
    EXPECT_EQ(writing.line, 121);
    EXPECT_EQ(Changes(), 0u);
}

}  // namespace kflC_Shortcut_test
