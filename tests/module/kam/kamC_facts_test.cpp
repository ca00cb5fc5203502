#include "module/ClassFacts.h"

namespace kamC_facts_test {

class AmplitudeFacts : public nga_test::LibraryTest {};

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
