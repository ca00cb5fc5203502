#include "module/ClassFacts.h"

namespace kbpC_facts_test {

class ProfileFacts : public nga_test::LibraryTest {};

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
