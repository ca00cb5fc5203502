#include "kmaC_MaterialContainerShortcut.h"

#include "ShortcutFixture.h"

namespace kmaC_MaterialContainerShortcut_test {

class MaterialShortcut : public ShortcutFixture {};

TEST_F(MaterialShortcut, ReachesTheRepositoryOfItsModel) {
    EXPECT_EQ(&ToMaterials().Get(session), &Materials());
    EXPECT_EQ(&ToMaterials().ConstGet(session), &Materials());
    ddr_Model other(cow_String("tower"));
    session.Add(other);
    kmaC_MaterialContainerShortcut const elsewhere(
        new kmaC_MaterialContainerInModelShortcut(ddr_ShortcutToModel("tower")));
    EXPECT_NE(&elsewhere.Get(session), &Materials());
}

TEST_F(MaterialShortcut, ThePathIsTheModelsThenTheRepositoryThenTheKey) {
    EXPECT_STREQ(ToMaterials().Name().Text(), "materials");
    EXPECT_STREQ(ToMaterials().Path().Text(), "documents['bridge'].materials");
    EXPECT_STREQ(ToMaterial("steel").Path().Text(), "documents['bridge'].materials['steel']");
}

TEST_F(MaterialShortcut, AnExtensionThatIsNoRepositoryOfMaterialsIsRefused) {
    class Bare : public mdl_Extension {
    public:
        mdl_Extension* Copy() const override { return new Bare(*this); }
    };
    class Other : public mdl_Repository {
    public:
        mdl_Extension* Copy() const override { return new Other(*this); }
        int Size() const override { return 0; }
    };
    model.SetExtension(ddr_Model::materialCmd(), static_cast<mdl_Extension*>(new Bare));
    EXPECT_EQ(TextOf([&] { ToMaterials().Get(session); }),
              "Cannot cast mdl_Extension to mdl_Repository");
    EXPECT_EQ(TextOf([&] { ToMaterials().ConstGet(session); }),
              "Cannot cast mdl_Extension to mdl_Repository");
    model.SetExtension(ddr_Model::materialCmd(), static_cast<mdl_Extension*>(new Other));
    EXPECT_EQ(TextOf([&] { ToMaterials().Get(session); }),
              "Cannot cast mdl_Repository to kmaC_MaterialContainer");
    EXPECT_EQ(TextOf([&] { ToMaterials().ConstGet(session); }),
              "Cannot cast mdl_Repository to kmaC_MaterialContainer");
}

TEST_F(MaterialShortcut, AMissingMaterialFailsWithItsKeyBeforeAnythingIsRecorded) {
    Changes();
    Access const writing = AccessFailureOf([&] { ToMaterial("brass").Get(session); });
    EXPECT_EQ(writing.key, "brass");
    EXPECT_EQ(writing.line, 121);
    EXPECT_EQ(AccessFailureOf([&] { ToMaterial("brass").ConstGet(session); }).line, 109);
    EXPECT_EQ(AccessFailureOf([&] { ToOption("brass", "elastic").Get(session); }).key, "brass");
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(Materials().ChangedKeys().Size(), 0);
}

TEST_F(MaterialShortcut, GetDetachesTheWholePathFromARepositoryThatShares) {
    Materials().Insert("steel", kmaC_Material());
    Materials().Insert("brass", kmaC_Material());
    kmaC_MaterialContainer const before(Materials());
    kmaC_Material const* const shared = before.ConstGetPtr("steel");
    ASSERT_EQ(Materials().ConstGetPtr("steel"), shared);

    ToMaterial("steel").Get(session).description = cow_String("a steel");
    EXPECT_EQ(before.ConstGetPtr("steel"), shared);
    EXPECT_STREQ(before.ConstGet("steel").description.Text(), "");
    EXPECT_STREQ(Materials().ConstGet("steel").description.Text(), "a steel");
    EXPECT_EQ(Materials().ConstGetPtr("brass"), before.ConstGetPtr("brass"));
}

TEST_F(MaterialShortcut, ConstGetDetachesNothingAndRecordsNothing) {
    Materials().Insert("steel", kmaC_Material());
    kmaC_MaterialContainer const before(Materials());
    Changes();
    EXPECT_EQ(&ToMaterial("steel").ConstGet(session), before.ConstGetPtr("steel"));
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(Materials().ConstGetPtr("steel"), before.ConstGetPtr("steel"));
}

}  // namespace kmaC_MaterialContainerShortcut_test
