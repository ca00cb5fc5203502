#include "module/ClassFacts.h"

namespace kbpC_facts_test {

using nga_test::ExpectedClass;

std::vector<ExpectedClass> MakeExpected() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kbp/kbpC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

class ProfileFacts : public nga_test::LibraryTest {};

TEST_F(ProfileFacts, AreThoseOf12Classes) { EXPECT_EQ(Expected().size(), 12u); }

TEST_F(ProfileFacts, EveryClassIsRegisteredInEveryDomain) {
    nga_test::ExpectRegistered(Expected());
}

TEST_F(ProfileFacts, TheRepositoryStandsAloneAndTheWrapperInDatabases) {
    using nga_test::OthersRegistered;
    std::set<unsigned> const repository{0x2640008};
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainLibrary, kbpC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainMemory, kbpC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainDatabase, kbpC_component),
              std::set<unsigned>{0x2640014});
}

TEST_F(ProfileFacts, TheRepositoryHasOneFieldAndTheWrapperToo) {
    cls_ClassMetadata const* repository = nga_test::DomainOf(cls_DomainLibrary).Find(0x2640008);
    EXPECT_STREQ(repository->Name().Text(), "kbpC_BeamProfileContainer");
    EXPECT_EQ(repository->Version(), 800);
    ASSERT_EQ(repository->Attributes().size(), 1u);
    EXPECT_STREQ(repository->Attributes()[0].field.Name().Text(), "map");
    cls_ClassMetadata const* wrapper = nga_test::DomainOf(cls_DomainDatabase).Find(0x2640014);
    EXPECT_STREQ(wrapper->Name().Text(), "kbpC_BPCWrapper");
    EXPECT_EQ(wrapper->Version(), 401);
    ASSERT_EQ(wrapper->Attributes().size(), 1u);
    EXPECT_STREQ(wrapper->Attributes()[0].field.Name().Text(), "extension");
    EXPECT_EQ(wrapper->Attributes()[0].type, 15);
    EXPECT_EQ(wrapper->Attributes()[0].arg, 0x230002u);
    EXPECT_EQ(wrapper->Attributes()[0].collection, 2);
}

TEST_F(ProfileFacts, AttributesStandInTheirOrderWithTheirCodes) {
    nga_test::ExpectAttributes(Expected());
}

TEST_F(ProfileFacts, DescriptionsSayTheSame) { nga_test::ExpectDescriptions(Expected()); }

TEST_F(ProfileFacts, ScriptNamesAreGivenByTheCmdFunctions) {
    nga_test::ExpectScriptNames(Expected());
    EXPECT_STREQ(kbpC_BeamProfile::nameCmd().Text(), "name");
    EXPECT_STREQ(kbpC_BeamProfile::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(kbpC_BeamProfile::profileRepositoryCmd().Text(), "profiles");
}

TEST_F(ProfileFacts, ANewObjectHoldsTheDefaults) { nga_test::ExpectDefaults(Expected()); }

TEST_F(ProfileFacts, AnObjectKnowsItsClassAndACopyHasItsIdentities) {
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x2640001u) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const object = static_cast<kbpC_BeamProfile*>(description->Create());
        kbpC_BeamProfile* const copy = object->Copy();
        EXPECT_EQ(object->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(description->Uid(copy), description->Uid(object)) << expected.name;
        EXPECT_EQ(copy->uid, object->uid) << expected.name;
        EXPECT_NE(description->Uid(object), object->uid) << expected.name;
        cow_Destroy(copy);
        cow_Destroy(object);
    }
}

TEST_F(ProfileFacts, ADeepCopyIsOfItsOwnType) {
    kbpC_PipeProfile pipe;
    pipe.r = 3.0;
    cow_Owned<kbpC_PipeProfile> const deep(pipe.DeepCopy());
    EXPECT_EQ(deep.Get()->r, 3.0);
    EXPECT_NE(deep.Get()->uid, pipe.uid);
}

struct Label {
    unsigned typeId;
    char const* label;
    char const* key;
};

void ExpectLabels(uti_TranslationMap const& map, std::vector<Label> const& labels) {
    ASSERT_EQ(map.TypeIds().Size(), static_cast<int>(labels.size()));
    for (int i = 0; i < map.TypeIds().Size(); ++i) {
        Label const& expected = labels[static_cast<std::size_t>(i)];
        EXPECT_EQ(map.TypeIds().ConstGet(i), expected.typeId);
        EXPECT_STREQ(map.Label(expected.typeId).Text(), expected.label);
        EXPECT_STREQ(map.Key(expected.typeId).Text(), expected.key);
    }
    EXPECT_STREQ(map.Label(0x2640001).Text(), "");
    EXPECT_STREQ(map.Key(0x2640001).Text(), "");
}

TEST_F(ProfileFacts, LabelsInTheirOrder) {
    ExpectLabels(kbpC_BeamProfileLabelMap::Instance(),
                 {{0x2640002, "Generalized", "Generalized"},
                  {0x2640007, "Box", "PROFILE_BOX"},
                  {0x2640005, "Pipe", "Pipe"},
                  {0x2640006, "I", "I"},
                  {0x264000B, "L", "L"},
                  {0x264000C, "T", "T"},
                  {0x2640009, "Arbitrary", "Arbitrary"},
                  {0x2640003, "Circular", "Circular"},
                  {0x2640004, "Hexagonal", "Hexagonal"},
                  {0x264000A, "Rectangular\\@PROFILE_RECTANGULAR", "Rectangular"},
                  {0x264000D, "Trapezoidal", "Trapezoidal"}});
}

TEST_F(ProfileFacts, DescriptionsInTheirOrder) {
    ExpectLabels(kbpC_BeamProfileDescriptionMap::Instance(),
                 {{0x2640002, "Generalized", "Generalized"},
                  {0x2640005, "Pipe", "Pipe"},
                  {0x2640007, "Box", "Box"},
                  {0x2640006, "I", "I"},
                  {0x264000B, "L", "L"},
                  {0x264000C, "T", "T"},
                  {0x2640003, "Circular", "Circular"},
                  {0x264000A, "Rectangular\\@RECTAGULAR_BEAM_PROFILE",
                   "Rectangular\\@RECTAGULAR_BEAM_PROFILE"},
                  {0x2640004, "Hexagonal", "Hexagonal"},
                  {0x264000D, "Trapezoidal", "Trapezoidal"},
                  {0x2640009, "Arbitrary", "Arbitrary"}});
}

char const* Marked(char const* literal) { return literal[0] == 'B' ? "Kasten" : nullptr; }

TEST_F(ProfileFacts, LabelsAreInTheLanguageInWhichTheyWereFirstAskedForAndEndWithTheModule) {
    atr_setTranslation(Marked);
    kbpC_BeamProfileLabelMap::Finalize();
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Label(0x2640007).Text(), "Kasten");
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Key(0x2640007).Text(), "PROFILE_BOX");
    atr_setTranslation(nullptr);
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Label(0x2640007).Text(), "Kasten");
    kbpC_BeamProfileDescriptionMap::Finalize();
    int count = 0;
    kbpC_initialize(count);
    kbpC_finalize(count);
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Label(0x2640007).Text(), "Kasten");
}

TEST(ProfileModule, EndsTheLabelsWithTheLastFinalize) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    atr_setTranslation(Marked);
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Label(0x2640007).Text(), "Kasten");
    EXPECT_STREQ(kbpC_BeamProfileDescriptionMap::Instance().Label(0x2640007).Text(), "Kasten");
    atr_setTranslation(nullptr);
    DDB_NonGeometricAttributes_finalize(count);
    DDB_NonGeometricAttributes_initialize(count);
    EXPECT_STREQ(kbpC_BeamProfileLabelMap::Instance().Label(0x2640007).Text(), "Box");
    EXPECT_STREQ(kbpC_BeamProfileDescriptionMap::Instance().Label(0x2640007).Text(), "Box");
    DDB_NonGeometricAttributes_finalize(count);
}

TEST_F(ProfileFacts, PointsOfTemperature) {
    struct Points {
        unsigned typeId;
        int without;
        int with;
    };
    for (Points const& expected : std::vector<Points>{{0x2640007, 4, 4},
                                                      {0x2640003, 3, 4},
                                                      {0x2640002, 1, 1},
                                                      {0x2640004, 4, 6},
                                                      {0x2640006, 3, 5},
                                                      {0x264000B, 2, 3},
                                                      {0x2640005, 4, 4},
                                                      {0x264000A, 3, 4},
                                                      {0x264000C, 3, 5},
                                                      {0x264000D, 3, 4},
                                                      {0x2640009, 0, 0}}) {
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const profile = static_cast<kbpC_BeamProfile*>(description->Create());
        EXPECT_EQ(profile->NumTempPoints(false), expected.without) << description->Name();
        EXPECT_EQ(profile->NumTempPoints(true), expected.with) << description->Name();
        cow_Destroy(profile);
    }
    kbpC_ArbitraryProfile arbitrary;
    arbitrary.table = cow_2DArray<double>(7, 3);
    EXPECT_EQ(arbitrary.NumTempPoints(false), 7);
    EXPECT_EQ(arbitrary.NumTempPoints(true), 7);
}

TEST_F(ProfileFacts, TheModelHasTheRepositoryWhileTheModuleIsUp) {
    cow_String const name(ddr_Model::profileCmd());
    ddr_Model const model("bridge");
    EXPECT_EQ(model.ConstGetExtension(name).ConstGetValue().DynTypeId(), 0x2640008u);
}

TEST(ProfileModule, CountsItselfOnceAndTakesItsExtensionAway) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int const all = count;
    kbpC_initialize(count);
    EXPECT_EQ(count, all);
    kbpC_finalize(count);
    EXPECT_EQ(count, all);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
    cow_String const name(ddr_Model::profileCmd());
    EXPECT_EQ(ddr_Model::RegisteredExtensions().Find(name), nullptr);
}

}  // namespace kbpC_facts_test
