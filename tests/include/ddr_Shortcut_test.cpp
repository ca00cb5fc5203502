#include "ddr_Shortcut.h"

#include "ShortcutFixture.h"
#include "support/RecordingWriteAgent.h"

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
    EXPECT_EQ(nga_test::WriteLog().Write(ToMaterial("steel")),
              "start 0x2380067\n"
              "field -1:impl with handle {\n"
              "  start 0x2380068\n"
              "  text -1:name=steel\n"
              "  field -1:parent {\n"
              "    start 0x238006A\n"
              "    field -1:impl with handle {\n"
              "      start 0x238007C\n"
              "      field -1:parent {\n"
              "        start 0x140002\n"
              "        field -1:impl with handle {\n"
              "          start 0x140004\n"
              "          text -1:name=bridge\n"
              "        }\n"
              "      }\n"
              "    }\n"
              "  }\n"
              "}\n");
}

TEST_F(Shortcut, OneThatIsNotSetWritesANull) {
    EXPECT_EQ(nga_test::WriteLog().Write(kmaC_MaterialShortcut()),
              "start 0x2380067\nnull -1:impl\n");
}

TEST_F(Shortcut, AnIdentityThatIsWrittenAlreadyLeavesTheFieldsOut) {
    kmaC_MaterialShortcut const shortcut = ToMaterial("steel");
    nga_test::WriteLog log;
    log.Write(shortcut);
    EXPECT_EQ(log.Write(shortcut), "start 0x2380067 again\n");

    using Step = kmaC_MaterialInMaterialContainerShortcut;
    nga_test::WriteLog stepKnown;
    stepKnown.written = {
        {Step::TypeId(), static_cast<Step const&>(shortcut.StepHandle().ConstGet()).Uid()}};
    EXPECT_EQ(stepKnown.Write(shortcut),
              "start 0x2380067\n"
              "field -1:impl with handle {\n"
              "  start 0x2380068 again\n"
              "}\n");
}

}  // namespace ddr_Shortcut_test
