#include "ddr_ModelShortcut.h"

#include "ShortcutFixture.h"
#include "support/RecordingWriteAgent.h"

namespace ddr_ModelShortcut_test {

class ModelShortcut : public ShortcutFixture {};

TEST_F(ModelShortcut, FindsEachModelOfTheSessionByItsName) {
    ddr_Model other(cow_String("tower"));
    session.Add(other);
    EXPECT_EQ(&ddr_ShortcutToModel("bridge").Get(session), &model);
    EXPECT_EQ(&ddr_ShortcutToModel("tower").Get(session), &other);
    EXPECT_EQ(&ddr_ShortcutToModel("bridge").ConstGet(session), &model);
    EXPECT_EQ(&ddr_ShortcutToModel("tower").ConstGet(session), &other);
}

TEST_F(ModelShortcut, AModelThatTheSessionDoesNotHoldFailsWithItsName) {
    EXPECT_EQ(AccessFailureOf([&] { ddr_ShortcutToModel("dam").Get(session); }).key, "dam");
    EXPECT_EQ(AccessFailureOf([&] { ddr_ShortcutToModel("dam").ConstGet(session); }).key, "dam");
    session.Remove(model);
    EXPECT_EQ(AccessFailureOf([&] { ddr_ShortcutToModel("bridge").Get(session); }).key, "bridge");
}

TEST_F(ModelShortcut, ARenamedModelAnswersToItsNewNameAlone) {
    ddr_ModelShortcut const shortcut = ddr_ShortcutToModel("bridge");
    model.Rename("viaduct");
    EXPECT_EQ(AccessFailureOf([&] { shortcut.Get(session); }).key, "bridge");
    EXPECT_TRUE(shortcut.IsSet());
    EXPECT_EQ(&ddr_ShortcutToModel("viaduct").Get(session), &model);
}

TEST_F(ModelShortcut, OfTwoModelsWithOneNameTheFirstAnswers) {
    ddr_Model second(cow_String("bridge"));
    session.Add(second);
    session.Add(second);
    EXPECT_EQ(&ddr_ShortcutToModel("bridge").Get(session), &model);
    session.Remove(model);
    EXPECT_EQ(&ddr_ShortcutToModel("bridge").Get(session), &second);
    session.Remove(second);
    EXPECT_EQ(session.Find("bridge"), nullptr);
}

TEST_F(ModelShortcut, ThePathIsAnExpressionWithTheNameAsALiteral) {
    EXPECT_STREQ(ddr_ShortcutToModel("bridge").Path().Text(), "documents['bridge']");
    EXPECT_STREQ(ddr_ShortcutToModel("bob's \\ one").Path().Text(),
                 "documents['bob\\'s \\\\ one']");
    EXPECT_STREQ(ddr_ShortcutToModel("bridge").PythonPath().Text(), "documents['bridge']");
    EXPECT_STREQ(ddr_ShortcutToModel("bridge").Name().Text(), "bridge");
}

TEST_F(ModelShortcut, TheRootAnswersForTheNameOfTheDatabase) {
    EXPECT_STREQ(ddr_ShortcutToModel("bridge").DdbName().Text(), "bridge");
    EXPECT_STREQ(ToMaterial("steel").DdbName().Text(), "bridge");
    EXPECT_STREQ(ToSuboption(ToOption("steel", "elastic"), "failStress").DdbName().Text(),
                 "bridge");
    EXPECT_STREQ(ddr_ModelShortcut().DdbName().Text(), "");
}

TEST_F(ModelShortcut, WritesItsNameAlone) {
    EXPECT_EQ(nga_test::WriteLog().Write(ddr_ShortcutToModel("bridge")),
              "start 0x140002\n"
              "field -1:impl with handle {\n"
              "  start 0x140004\n"
              "  text -1:name=bridge\n"
              "}\n");
}

TEST_F(ModelShortcut, TheComponentNamesItsClasses) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(ddr_Model::TypeId()), "ddr_Model");
    EXPECT_STREQ(typ_ArchCompTable::GetName(ddr_ModelShortcut::TypeId()), "ddr_ModelShortcut");
    EXPECT_STREQ(typ_ArchCompTable::GetName(ddr_ModelImplShortcut::TypeId()), "ddr_ModelIMPLSC");
    EXPECT_STREQ(typ_ArchCompTable::GetName(ddr_ModelInSessionShortcut::TypeId()),
                 "ddr_ModelInSessionShortcut");
    EXPECT_EQ(typ_ArchCompTable::GetParent(ddr_ModelInSessionShortcut::TypeId()),
              ddr_ModelImplShortcut::TypeId());
}

}  // namespace ddr_ModelShortcut_test
