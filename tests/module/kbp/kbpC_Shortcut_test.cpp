#include "ShortcutFixture.h"

namespace kbpC_Shortcut_test {

using InContainer = kbpC_BeamProfileInBeamProfileContainerShortcut;

class ProfileShortcut : public ShortcutFixture {
protected:
    ProfileShortcut() {
        Profiles().Insert("a", kbpC_CircularProfile());
        Changes();
    }
    kbpC_BeamProfileContainer& Profiles() {
        return static_cast<kbpC_BeamProfileContainer&>(
            model.GetExtension(ddr_Model::profileCmd()).GetValue());
    }
    static kbpC_BeamProfileContainerShortcut ToProfiles() {
        return kbpC_BeamProfileContainerShortcut(
            new kbpC_BeamProfileContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    }
    static kbpC_BeamProfileShortcut ToProfile(cow_String const& name) {
        return kbpC_BeamProfileShortcut(new InContainer(ToProfiles(), name));
    }
};

TEST_F(ProfileShortcut, PathsAreScriptExpressions) {
    EXPECT_STREQ(ToProfiles().Path().Text(), "documents['bridge'].profiles");
    EXPECT_STREQ(ToProfiles().Name().Text(), "profiles");
    EXPECT_STREQ(ToProfile("a").Path().Text(), "documents['bridge'].profiles['a']");
    EXPECT_STREQ(ToProfile("a").Name().Text(), "a");
}

TEST_F(ProfileShortcut, StepsHaveTheirTypes) {
    EXPECT_EQ(kbpC_BeamProfileShortcut::TypeId(), 0x2640010u);
    EXPECT_EQ(InContainer::TypeId(), 0x2640011u);
    EXPECT_EQ(kbpC_BeamProfileIMPSC::TypeId(), 0x2640012u);
    EXPECT_EQ(kbpC_BeamProfileContainerShortcut::TypeId(), 0x264000Eu);
    EXPECT_EQ(kbpC_BeamProfileContainerIMPLSC::TypeId(), 0x264000Fu);
    EXPECT_EQ(kbpC_BeamProfileContainerInModelShortcut::TypeId(), 0x2640013u);
}

TEST_F(ProfileShortcut, ReachesTheRepositoryAndItsEntries) {
    EXPECT_EQ(&ToProfiles().ConstGet(session), &Profiles());
    EXPECT_EQ(&ToProfile("a").ConstGet(session), Profiles().ConstGetPtr("a"));
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(&ToProfile("a").Get(session), Profiles().ConstGetPtr("a"));
    EXPECT_EQ(Changes(), 1u);
}

TEST_F(ProfileShortcut, AMissingKeyIsRefusedBeforeTheRepositoryIsTouched) {
    Access const reading = AccessFailureOf([&] { ToProfile("gone").ConstGet(session); });
    EXPECT_EQ(reading.key, "gone");
    EXPECT_EQ(reading.file, "generated/include/ddr_Shortcut");
    EXPECT_EQ(reading.line, 109);
    Access const writing = AccessFailureOf([&] { ToProfile("gone").Get(session); });
    EXPECT_EQ(writing.key, "gone");
    EXPECT_EQ(writing.line, 121);
    EXPECT_EQ(Changes(), 0u);
}

}  // namespace kbpC_Shortcut_test
