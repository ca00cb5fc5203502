#include <cstring>

#include "module/ClassFacts.h"

namespace kamC_facts_test {

using nga_test::ExpectedClass;
using nga_test::ExpectLiterals;

std::vector<ExpectedClass> MakeExpected() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kam/kamC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

class AmplitudeFacts : public nga_test::LibraryTest {};

TEST_F(AmplitudeFacts, AreThoseOf13Classes) { EXPECT_EQ(Expected().size(), 13u); }

TEST_F(AmplitudeFacts, EveryClassIsRegisteredInEveryDomain) {
    nga_test::ExpectRegistered(Expected());
}

TEST_F(AmplitudeFacts, TheRepositoryIsRegisteredEverywhereAndTheWrapperInDatabases) {
    using nga_test::OthersRegistered;
    std::set<unsigned> const repository{0x244000C};
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainLibrary, kamC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainMemory, kamC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainDatabase, kamC_component),
              (std::set<unsigned>{0x244000C, 0x2440017}));
}

TEST_F(AmplitudeFacts, TheRepositoryHasOneFieldAndTheWrapperToo) {
    auto const& database = nga_test::DomainOf(cls_DomainDatabase);
    cls_ClassMetadata const* repository = database.Find(0x244000C);
    EXPECT_STREQ(repository->Name().Text(), "kamC_AmplitudeContainer");
    EXPECT_EQ(repository->Version(), 800);
    ASSERT_EQ(repository->Attributes().size(), 1u);
    EXPECT_STREQ(repository->Attributes()[0].field.Name().Text(), "map");
    cls_ClassMetadata const* wrapper = database.Find(0x2440017);
    EXPECT_STREQ(wrapper->Name().Text(), "kamC_ACWrapper");
    EXPECT_EQ(wrapper->Version(), 401);
    ASSERT_EQ(wrapper->Attributes().size(), 1u);
    EXPECT_STREQ(wrapper->Attributes()[0].field.Name().Text(), "extension");
    EXPECT_EQ(wrapper->Attributes()[0].type, 15);
    EXPECT_EQ(wrapper->Attributes()[0].arg, 0x230002u);
    EXPECT_EQ(wrapper->Attributes()[0].collection, 2);
}

TEST_F(AmplitudeFacts, AttributesStandInTheirOrderWithTheirCodes) {
    nga_test::ExpectAttributes(Expected());
}

TEST_F(AmplitudeFacts, DescriptionsSayTheSame) { nga_test::ExpectDescriptions(Expected()); }

TEST_F(AmplitudeFacts, ScriptNamesAreGivenByTheCmdFunctions) {
    nga_test::ExpectScriptNames(Expected());
    EXPECT_STREQ(kamC_Amplitude::nameCmd().Text(), "name");
    EXPECT_STREQ(kamC_Amplitude::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(kamC_Amplitude::amplitudeRepositoryCmd().Text(), "amplitudes");
}

TEST_F(AmplitudeFacts, ANewObjectHoldsTheDefaults) { nga_test::ExpectDefaults(Expected()); }

TEST_F(AmplitudeFacts, ASmoothingLeftToTheSolverIsTheLargestFiniteDouble) {
    double const smooth = kamC_Tabular().smooth;
    std::uint64_t bits;
    std::memcpy(&bits, &smooth, sizeof bits);
    EXPECT_EQ(bits, 0x7FEFFFFFFFFFFFFFu);
}

TEST_F(AmplitudeFacts, EnumerationsHaveTheirLiteralsInOrder) {
    int count = 0;
    // The rows of a class's enumeration are those of its field.
#define ENUM(C, Enum, field, ...)                          \
    ++count;                                               \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__}); \
    EXPECT_EQ(C::Description().FindField(#field)->Type().Rows(), omu_Rows(C::Enum())) << #C;
#define LONE_ENUM(C, Enum, ...) \
    ++count;                    \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__});
#include "kamC_literals.inc"
#undef ENUM
#undef LONE_ENUM
    EXPECT_EQ(count, 5);
}

TEST_F(AmplitudeFacts, AnObjectKnowsItsClassAndACopyHasItsIdentities) {
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x2440002u) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const amplitude = static_cast<kamC_Amplitude*>(description->Create());
        kamC_Amplitude* const copy = amplitude->Copy();
        EXPECT_EQ(amplitude->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(description->Uid(copy), description->Uid(amplitude)) << expected.name;
        EXPECT_EQ(copy->uid, amplitude->uid) << expected.name;
        EXPECT_NE(description->Uid(amplitude), amplitude->uid) << expected.name;
        cow_Destroy(copy);
        cow_Destroy(amplitude);
    }
}

TEST_F(AmplitudeFacts, ADeepCopyIsOfItsOwnTypeAndSharesNothing) {
    kamC_Tabular tabular;
    tabular.baselineCorrection = new kamC_BaselineCorrection;
    cow_Owned<kamC_Tabular> const deep(tabular.DeepCopy());
    EXPECT_TRUE(kamC_Tabular::Description().Same(&tabular, deep.Get()));
    EXPECT_NE(deep.Get()->uid, tabular.uid);
    EXPECT_NE(deep.Get()->baselineCorrection.GetPtr(), tabular.baselineCorrection.GetPtr());
    EXPECT_NE(deep.Get()->baselineCorrection.ConstGet().uid,
              tabular.baselineCorrection.ConstGet().uid);

    kamC_Tabular shared(tabular);
    EXPECT_EQ(shared.baselineCorrection.GetPtr(), tabular.baselineCorrection.GetPtr());
    shared.baselineCorrection.Get().intervals.Append(1.0);
    EXPECT_EQ(tabular.baselineCorrection.ConstGet().intervals.Size(), 0);
}

TEST_F(AmplitudeFacts, LabelsOfKinds) {
    char const* const labels[] = {"",
                                  "Tabular",
                                  "Smooth Step",
                                  "Equally spaced",
                                  "Periodic",
                                  "Modulated",
                                  "Decay",
                                  "Solution dependent",
                                  "PSD-Definition",
                                  "Spectrum",
                                  "Actuator",
                                  "User",
                                  ""};
    for (int kind = 0; kind < 13; ++kind)
        EXPECT_STREQ(kamC_TypeLabelMap::LabelString(kamC_TypeLabelEnm(kind)).Text(), labels[kind]);
    for (int kind : {-1, 100, 2147483647})
        EXPECT_STREQ(kamC_TypeLabelMap::LabelString(kamC_TypeLabelEnm(kind)).Text(), "");
}

TEST_F(AmplitudeFacts, LabelsOfTimes) {
    char const* const labels[] = {"", "Step Time", "Total Time", "N/A", ""};
    for (int time = 0; time < 5; ++time)
        EXPECT_STREQ(kamC_TimeLabelMap::LabelString(kamC_TimeLabelEnm(time)).Text(), labels[time]);
    EXPECT_STREQ(kamC_TimeLabelMap::LabelString(kamC_TimeLabelEnm(-1)).Text(), "");
}

TEST_F(AmplitudeFacts, TheModelHasTheRepositoryWhileTheModuleIsUp) {
    cow_String const name(ddr_Model::amplitudeCmd());
    ddr_Model const model("bridge");
    EXPECT_EQ(model.ConstGetExtension(name).ConstGetValue().DynTypeId(), 0x244000Cu);
}

TEST(AmplitudeModule, CountsItselfOnceAndTakesItsExtensionAway) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int const all = count;
    kamC_initialize(count);
    EXPECT_EQ(count, all);
    kamC_finalize(count);
    EXPECT_EQ(count, all);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
    cow_String const name(ddr_Model::amplitudeCmd());
    EXPECT_EQ(ddr_Model::RegisteredExtensions().Find(name), nullptr);
}

}  // namespace kamC_facts_test
