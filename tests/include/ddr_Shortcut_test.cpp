#include "ddr_Shortcut.h"

#include "RecordingAgent.h"
#include "ShortcutFixture.h"

namespace ddr_Shortcut_test {

class Shortcut : public ShortcutFixture {};

TEST_F(Shortcut, OneThatIsNotSetHasNoNameAndNoPath) {
    kmaC_MaterialShortcut const unset;
    EXPECT_FALSE(unset.IsSet());
    EXPECT_STREQ(unset.Name().Text(), "");
    EXPECT_STREQ(unset.Path().Text(), "");
    EXPECT_STREQ(unset.PythonPath().Text(), "");
    EXPECT_TRUE(ToMaterial("steel").IsSet());
}

TEST_F(Shortcut, OneThatIsNotSetRefusesToBeFollowed) {
    kmaC_MaterialShortcut const unset;
    EXPECT_EQ(TextOf([&] { unset.Get(session); }), "The shortcut is not set.");
    EXPECT_EQ(TextOf([&] { unset.ConstGet(session); }), "The shortcut is not set.");
    kmaC_MaterialOptionShortcut const onUnset(
        new kmaC_MaterialOptionInMaterialShortcut(unset, "elastic"));
    EXPECT_TRUE(onUnset.IsSet());
    EXPECT_EQ(TextOf([&] { onUnset.ConstGet(session); }), "The shortcut is not set.");
}

TEST_F(Shortcut, TwoWithEqualPathsAreEqualAlsoIfTheyAreSeparateObjects) {
    EXPECT_TRUE(ToMaterial("steel") == ToMaterial("steel"));
    EXPECT_FALSE(ToMaterial("steel") == ToMaterial("Steel"));
    EXPECT_FALSE(ToMaterial("steel") == kmaC_MaterialShortcut());
    EXPECT_TRUE(kmaC_MaterialShortcut() == kmaC_MaterialShortcut());
    EXPECT_TRUE(ToMaterial("steel") != ToMaterial("brass"));
}

TEST_F(Shortcut, OnesOfDifferentClassesAreComparedByTheirPathsToo) {
    omu_ShortcutBase const& material = ToMaterial("steel");
    omu_ShortcutBase const& materials = ToMaterials();
    EXPECT_FALSE(material == materials);
    EXPECT_TRUE(kmaC_MaterialShortcut() ==
                static_cast<omu_ShortcutBase const&>(klcC_LoadCaseContShortcut()));
}

TEST_F(Shortcut, TheThreeAnswersOfAStepAreConstant) {
    kmaC_MaterialOptionShortcut const option = ToOption("steel", "elastic");
    kmaC_MaterialContainerShortcut const materials = ToMaterials();
    omu_ShortcutImpl const* const steps[] = {option.StepHandle().GetPtr(),
                                             materials.StepHandle().GetPtr()};
    for (omu_ShortcutImpl const* step : steps) {
        EXPECT_FALSE(step->HoldsReference());
        EXPECT_TRUE(step->IsPersistent());
        EXPECT_FALSE(step->CachesTarget());
    }
}

TEST_F(Shortcut, ACopySharesTheChain) {
    kmaC_MaterialShortcut const shortcut = ToMaterial("steel");
    kmaC_MaterialShortcut const copy(shortcut);
    EXPECT_EQ(copy.StepHandle().GetPtr(), shortcut.StepHandle().GetPtr());
    EXPECT_EQ(copy.StepHandle().Count(), 2);
    EXPECT_EQ(copy.Uid(), shortcut.Uid());
}

TEST_F(Shortcut, ACopiedStepSharesItsParentsStepAndBearsBothIdentities) {
    kmaC_MaterialInMaterialContainerShortcut const step(ToMaterials(), "steel");
    ASSERT_EQ(step.Parent().StepHandle().Count(), 1);
    std::unique_ptr<kmaC_MaterialInMaterialContainerShortcut> const copy(step.Copy());
    EXPECT_EQ(copy->Parent().StepHandle().GetPtr(), step.Parent().StepHandle().GetPtr());
    EXPECT_EQ(step.Parent().StepHandle().Count(), 2);
    EXPECT_TRUE(copy->Key() == step.Key());
    EXPECT_EQ(copy->Uid(), step.Uid());
    EXPECT_EQ(copy->Parent().Uid(), step.Parent().Uid());
}

TEST_F(Shortcut, FollowingItLeavesTheChainShared) {
    Materials().Insert("steel", kmaC_Material());
    kmaC_MaterialShortcut const shortcut = ToMaterial("steel");
    kmaC_MaterialShortcut const copy(shortcut);
    shortcut.Get(session);
    EXPECT_EQ(copy.StepHandle().GetPtr(), shortcut.StepHandle().GetPtr());
}

TEST_F(Shortcut, WritesTheChainFromTheLastStepToTheRoot) {
    std::vector<std::string> const expected = {
        "start 0x2380067",
        "impl(-1) behind a handle",
        "  start 0x2380068",
        "  name(-1) \"steel\"",
        "  parent(-1) by value",
        "    start 0x238006a",
        "    impl(-1) behind a handle",
        "      start 0x238007c",
        "      parent(-1) by value",
        "        start 0x140002",
        "        impl(-1) behind a handle",
        "          start 0x140004",
        "          name(-1) \"bridge\"",
    };
    EXPECT_EQ(WrittenLines(ToMaterial("steel")), expected);
}

TEST_F(Shortcut, OneThatIsNotSetWritesANull) {
    std::vector<std::string> const expected = {"start 0x2380067", "impl(-1) null"};
    EXPECT_EQ(WrittenLines(kmaC_MaterialShortcut()), expected);
}

TEST_F(Shortcut, AnIdentityThatIsWrittenAlreadyLeavesTheFieldsOut) {
    kmaC_MaterialShortcut const shortcut = ToMaterial("steel");
    RecordingAgent::Log handleKnown;
    handleKnown.known = {shortcut.Uid()};
    EXPECT_EQ(WrittenLines(shortcut, handleKnown), std::vector<std::string>{"start 0x2380067"});
    RecordingAgent::Log stepKnown;
    stepKnown.known = {static_cast<kmaC_MaterialInMaterialContainerShortcut const&>(
                           shortcut.StepHandle().ConstGet())
                           .Uid()};
    std::vector<std::string> const expected = {"start 0x2380067", "impl(-1) behind a handle",
                                               "  start 0x2380068"};
    EXPECT_EQ(WrittenLines(shortcut, stepKnown), expected);
}

}  // namespace ddr_Shortcut_test
