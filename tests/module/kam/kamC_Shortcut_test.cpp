#include "ShortcutFixture.h"

namespace kamC_Shortcut_test {

using Variant1 = kamC_BaselineCorrectionInEquallySpacedShortcut;
using Variant2 = kamC_BaselineCorrectionInTabularShortcut;
using Variant3 = kamC_BaselineCorrectionInAmplitudeShortcut;

class AmplitudeShortcut : public ShortcutFixture {
protected:
    AmplitudeShortcut() {
        kamC_Tabular tabular;
        tabular.baselineCorrection = new kamC_BaselineCorrection;
        Amplitudes().Insert("tabular", tabular);
        kamC_EquallySpaced spaced;
        spaced.baselineCorrection = new kamC_BaselineCorrection;
        Amplitudes().Insert("spaced", spaced);
        Amplitudes().Insert("decay", kamC_Decay());
        Amplitudes().Insert("bare", kamC_Tabular());
        Changes();
    }
    kamC_AmplitudeContainer& Amplitudes() {
        return static_cast<kamC_AmplitudeContainer&>(
            model.GetExtension(ddr_Model::amplitudeCmd()).GetValue());
    }
    static kamC_AmplitudeContainerShortcut ToAmplitudes() {
        return kamC_AmplitudeContainerShortcut(
            new kamC_AmplitudeContainerInModelShortcut(ddr_ShortcutToModel("bridge")));
    }
    static kamC_AmplitudeShortcut ToAmplitude(cow_String const& name) {
        return kamC_AmplitudeShortcut(
            new kamC_AmplitudeInAmplitudeContainerShortcut(ToAmplitudes(), name));
    }
    template <class Variant>
    static kamC_BaselineCorrectionShortcut ToCorrection(cow_String const& name) {
        return kamC_BaselineCorrectionShortcut(new Variant(ToAmplitude(name)));
    }
    template <class Variant>
    std::string ReadFailure(cow_String const& name) {
        return TextOf([&] { ToCorrection<Variant>(name).ConstGet(session); });
    }
    template <class Variant>
    std::string WriteFailure(cow_String const& name) {
        return TextOf([&] { ToCorrection<Variant>(name).Get(session); });
    }
    kamC_BaselineCorrection const* Held(cow_String const& name) {
        kamC_Amplitude const& amplitude = Amplitudes().ConstGet(name);
        return amplitude.DynTypeId() == kamC_Tabular::TypeId()
                   ? static_cast<kamC_Tabular const&>(amplitude).baselineCorrection.GetPtr()
                   : static_cast<kamC_EquallySpaced const&>(amplitude).baselineCorrection.GetPtr();
    }
};

TEST_F(AmplitudeShortcut, PathsAreScriptExpressions) {
    EXPECT_STREQ(ToAmplitudes().Path().Text(), "documents['bridge'].amplitudes");
    EXPECT_STREQ(ToAmplitudes().Name().Text(), "amplitudes");
    EXPECT_STREQ(ToAmplitude("decay").Path().Text(), "documents['bridge'].amplitudes['decay']");
    EXPECT_STREQ(ToAmplitude("decay").Name().Text(), "decay");
    for (auto const& shortcut :
         {ToCorrection<Variant1>("a"), ToCorrection<Variant2>("a"), ToCorrection<Variant3>("a")}) {
        EXPECT_STREQ(shortcut.Name().Text(), "baselineCorrection");
        EXPECT_STREQ(shortcut.Path().Text(),
                     "documents['bridge'].amplitudes['a'].baselineCorrection");
    }
}

TEST_F(AmplitudeShortcut, StepsHaveTheirTypes) {
    EXPECT_EQ(kamC_AmplitudeShortcut::TypeId(), 0x244000Du);
    EXPECT_EQ(kamC_AmplitudeInAmplitudeContainerShortcut::TypeId(), 0x244000Eu);
    EXPECT_EQ(kamC_AmplitudeIMPLSC::TypeId(), 0x244000Fu);
    EXPECT_EQ(kamC_AmplitudeContainerShortcut::TypeId(), 0x2440010u);
    EXPECT_EQ(kamC_AmplitudeContainerIMPLSC::TypeId(), 0x2440011u);
    EXPECT_EQ(kamC_BaselineCorrectionShortcut::TypeId(), 0x2440012u);
    EXPECT_EQ(Variant1::TypeId(), 0x2440013u);
    EXPECT_EQ(Variant2::TypeId(), 0x2440014u);
    EXPECT_EQ(kamC_BaselineCorrectionIMPLSC::TypeId(), 0x2440015u);
    EXPECT_EQ(kamC_AmplitudeContainerInModelShortcut::TypeId(), 0x2440016u);
    EXPECT_EQ(Variant3::TypeId(), 0x2440018u);
}

TEST_F(AmplitudeShortcut, ReachesTheRepositoryAndItsEntries) {
    EXPECT_EQ(&ToAmplitudes().ConstGet(session), &Amplitudes());
    EXPECT_EQ(&ToAmplitude("decay").ConstGet(session), Amplitudes().ConstGetPtr("decay"));
    Access const missing = AccessFailureOf([&] { ToAmplitude("gone").ConstGet(session); });
    EXPECT_EQ(missing.key, "gone");
    EXPECT_EQ(missing.line, 109);
    EXPECT_EQ(AccessFailureOf([&] { ToAmplitude("gone").Get(session); }).line, 121);
    EXPECT_EQ(Changes(), 0u);
    ToAmplitude("decay").Get(session);
    EXPECT_EQ(Changes(), 1u);
}

TEST_F(AmplitudeShortcut, EachVariantReachesTheCorrectionOfItsAmplitudes) {
    EXPECT_EQ(&ToCorrection<Variant1>("spaced").ConstGet(session), Held("spaced"));
    EXPECT_EQ(&ToCorrection<Variant2>("tabular").ConstGet(session), Held("tabular"));
    EXPECT_EQ(&ToCorrection<Variant3>("spaced").ConstGet(session), Held("spaced"));
    EXPECT_EQ(&ToCorrection<Variant3>("tabular").ConstGet(session), Held("tabular"));
    EXPECT_EQ(&ToCorrection<Variant1>("spaced").Get(session), Held("spaced"));
    EXPECT_EQ(&ToCorrection<Variant2>("tabular").Get(session), Held("tabular"));
    EXPECT_EQ(&ToCorrection<Variant3>("spaced").Get(session), Held("spaced"));
    EXPECT_EQ(&ToCorrection<Variant3>("tabular").Get(session), Held("tabular"));
}

TEST_F(AmplitudeShortcut, OtherAmplitudesFailTheCast) {
    EXPECT_EQ(ReadFailure<Variant1>("tabular"), "Cannot cast kamC_Tabular to kamC_EquallySpaced");
    EXPECT_EQ(ReadFailure<Variant2>("spaced"), "Cannot cast kamC_EquallySpaced to kamC_Tabular");
    EXPECT_EQ(ReadFailure<Variant1>("decay"), "Cannot cast kamC_Decay to kamC_EquallySpaced");
    EXPECT_EQ(ReadFailure<Variant2>("decay"), "Cannot cast kamC_Decay to kamC_Tabular");
    // Whatever is not tabular is refused as the equally spaced are.
    EXPECT_EQ(ReadFailure<Variant3>("decay"), "Cannot cast kamC_Decay to kamC_EquallySpaced");
    EXPECT_EQ(WriteFailure<Variant1>("tabular"), "Cannot cast kamC_Tabular to kamC_EquallySpaced");
    EXPECT_EQ(WriteFailure<Variant2>("spaced"), "Cannot cast kamC_EquallySpaced to kamC_Tabular");
    EXPECT_EQ(WriteFailure<Variant3>("decay"), "Cannot cast kamC_Decay to kamC_EquallySpaced");
}

TEST_F(AmplitudeShortcut, GetTakesTheCorrectionOutOfItsSharingAndConstGetDoesNot) {
    for (cow_String const& name : {cow_String("tabular"), cow_String("spaced")}) {
        kamC_AmplitudeContainer const before(Amplitudes());
        kamC_BaselineCorrection const* const shared = Held(name);
        EXPECT_EQ(&ToCorrection<Variant3>(name).ConstGet(session), shared);
        ToCorrection<Variant3>(name).Get(session).intervals.Append(2.0);
        EXPECT_NE(Held(name), shared);
        EXPECT_EQ(Held(name)->intervals.Size(), 1);
        EXPECT_EQ(shared->intervals.Size(), 0);
    }
}

TEST_F(AmplitudeShortcut, AnAbsentCorrectionIsAReferenceToNull) {
    kamC_BaselineCorrection const* const address =
        &ToCorrection<Variant3>("bare").ConstGet(session);
    EXPECT_EQ(address, nullptr);
    EXPECT_EQ(ToCorrection<Variant2>("bare").ConstGetPtr(session), nullptr);
    EXPECT_EQ(ToCorrection<Variant2>("bare").GetPtr(session), nullptr);
    Amplitudes().Insert("bare spaced", kamC_EquallySpaced());
    EXPECT_EQ(ToCorrection<Variant1>("bare spaced").ConstGetPtr(session), nullptr);
    EXPECT_EQ(ToCorrection<Variant1>("bare spaced").GetPtr(session), nullptr);
}

}  // namespace kamC_Shortcut_test
