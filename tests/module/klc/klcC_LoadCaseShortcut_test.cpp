#include "klcC_LoadCaseShortcut.h"

#include "ShortcutFixture.h"

namespace {

/// A host's container of load cases, and the step that leads to it.
struct Host {
    static inline klcC_LoadCaseCont* loadCases = nullptr;
};
using LoadCasesInModel = ddr_MemberShortcut<ddr_Model, klcC_LoadCaseCont, 1>;

}  // namespace

template <>
struct ddr_StepTraits<LoadCasesInModel> {
    static constexpr unsigned typeId = 0xEA710001;
    static constexpr omn_FixedString Name() { return klcC_LoadCase::loadCaseCmd(); }
    static klcC_LoadCaseCont const& ConstGet(ddr_Model const&) { return *Host::loadCases; }
    static klcC_LoadCaseCont& Get(ddr_Model&) { return *Host::loadCases; }
};

namespace klcC_LoadCaseShortcut_test {

class LoadCaseShortcut : public ShortcutFixture {
protected:
    LoadCaseShortcut() { Host::loadCases = &loadCases; }
    static klcC_LoadCaseContShortcut ToLoadCases() {
        return klcC_LoadCaseContShortcut(new LoadCasesInModel(ddr_ShortcutToModel("bridge")));
    }
    static klcC_LoadCaseShortcut ToLoadCase(cow_String const& name) {
        return klcC_LoadCaseShortcut(new klcC_LoadCaseInLoadCaseContShortcut(ToLoadCases(), name));
    }

    klcC_LoadCaseCont loadCases;
};

TEST_F(LoadCaseShortcut, ThePathIsTheContainersAndTheKeyInSingleQuotes) {
    EXPECT_STREQ(ToLoadCase("a").Path().Text(), "documents['bridge'].loadCases['a']");
    EXPECT_STREQ(ToLoadCase("a").PythonPath().Text(), "documents['bridge'].loadCases['a']");
    EXPECT_STREQ(ToLoadCases().Path().Text(), "documents['bridge'].loadCases");
}

TEST_F(LoadCaseShortcut, TheKeyStandsInThePathUnescaped) {
    EXPECT_STREQ(ToLoadCase("it's \\ one\n").Path().Text(),
                 "documents['bridge'].loadCases['it's \\ one\n']");
    EXPECT_STREQ(ToLoadCase("").Path().Text(), "documents['bridge'].loadCases['']");
}

TEST_F(LoadCaseShortcut, TheNameIsTheKeyWithoutQuotes) {
    EXPECT_STREQ(ToLoadCase("dead load").Name().Text(), "dead load");
    EXPECT_STREQ(ToLoadCases().Name().Text(), "loadCases");
}

TEST_F(LoadCaseShortcut, AKeyThatHasGoneFailsAndTheHandleStaysSet) {
    loadCases.Insert("a", klcC_LoadCase());
    klcC_LoadCaseShortcut const shortcut = ToLoadCase("a");
    EXPECT_EQ(&shortcut.ConstGet(session), loadCases.ConstGetPtr("a"));
    loadCases.Remove("a");

    Access const reading = AccessFailureOf([&] { shortcut.ConstGet(session); });
    EXPECT_EQ(reading.key, "a");
    EXPECT_EQ(reading.file, "generated/include/ddr_Shortcut");
    EXPECT_EQ(reading.line, 109);
    Access const writing = AccessFailureOf([&] { shortcut.Get(session); });
    EXPECT_EQ(writing.key, "a");
    EXPECT_EQ(writing.file, "generated/include/ddr_Shortcut");
    EXPECT_EQ(writing.line, 121);
    EXPECT_TRUE(shortcut.IsSet());
}

TEST_F(LoadCaseShortcut, AMissingKeyIsRefusedBeforeTheContainerIsTouched) {
    loadCases.Insert("a", klcC_LoadCase());
    int const touched = loadCases.ChangedKeys().Size();
    Changes();
    AccessFailureOf([&] { ToLoadCase("b").Get(session); });
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(loadCases.ChangedKeys().Size(), touched);
    EXPECT_FALSE(loadCases.IsMember("b"));
}

TEST_F(LoadCaseShortcut, GetDetachesThePathAndRecordsAndConstGetDoesNeither) {
    loadCases.Insert("a", klcC_LoadCase());
    klcC_LoadCaseCont const before(loadCases);
    Changes();
    EXPECT_EQ(&ToLoadCase("a").ConstGet(session), before.ConstGetPtr("a"));
    EXPECT_EQ(Changes(), 0u);

    ToLoadCase("a").Get(session).includeActiveBaseStateBC = false;
    EXPECT_EQ(Changes(), 1u);
    EXPECT_FALSE(loadCases.ConstGet("a").includeActiveBaseStateBC);
    EXPECT_TRUE(before.ConstGet("a").includeActiveBaseStateBC);
}

TEST_F(LoadCaseShortcut, GivesTheParentToo) {
    klcC_LoadCaseInLoadCaseContShortcut const step(ToLoadCases(), "gone");
    EXPECT_EQ(&step.GetParent(session), &loadCases);
    EXPECT_EQ(&step.ConstGetParent(session), &loadCases);
}

TEST_F(LoadCaseShortcut, TheMemberNameInAPathIsTheScriptNameNotTheSchemaName) {
    EXPECT_STREQ(klcC_LoadCase::fieldsCmd().Text(), "predefinedFields");
}

}  // namespace klcC_LoadCaseShortcut_test
