#include <gtest/gtest.h>

#include <type_traits>

#include "module/ClassFacts.h"
#include "support/FieldMutator.h"
#include "support/Owned.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"

// DeepCopy() of the classes that offer it, and the records of those whose base has fields.

namespace deep_copy_test {

template <class C>
class DeepCopy : public nga_test::LibraryTest {};

using Classes = testing::Types<
    kamC_BaselineCorrection, kamC_Decay, kamC_EquallySpaced, kamC_Modulated, kamC_Periodic,
    kamC_PsdDefinition, kamC_SmoothStep, kamC_SolutionDependent, kamC_Spectrum, kamC_Tabular,
    kamC_ActuatorAmplitude, kamC_UserAmplitude, kbpC_ArbitraryProfile, kbpC_BoxProfile,
    kbpC_CircularProfile, kbpC_GeneralizedProfile, kbpC_HexagonalProfile, kbpC_IbeamProfile,
    kbpC_LbeamProfile, kbpC_PipeProfile, kbpC_RectangularProfile, kbpC_TbeamProfile,
    kbpC_TrapezoidalProfile, kflC_ButterworthFilter, kflC_Chebyshev1Filter, kflC_Chebyshev2Filter>;
TYPED_TEST_SUITE(DeepCopy, Classes);

TYPED_TEST(DeepCopy, IsOfTheClassAndHasNewIdentities) {
    static_assert(
        std::is_same_v<decltype(std::declval<TypeParam const&>().DeepCopy()), TypeParam*>);
    TypeParam object;
    nga_test::MutateAll(TypeParam::Description(), &object);
    nga_test::Owned<TypeParam> const deep(object.DeepCopy());
    EXPECT_TRUE(TypeParam::Description().Same(&object, deep.get()));
    EXPECT_NE(deep->uid, object.uid);
    EXPECT_EQ(deep->DynTypeId(), TypeParam::TypeId());

    nga_test::Owned<TypeParam> const copy(static_cast<TypeParam*>(object.Copy()));
    EXPECT_EQ(copy->uid, object.uid);
    EXPECT_TRUE(TypeParam::Description().Same(&object, copy.get()));
}

TEST(Records, OfAnAmplitudeHoldThoseOfItsBaseAndANullForWhatIsAbsent) {
    kamC_Tabular tabular;
    tabular.smooth = 0.25;
    nga_test::WriteLog log;
    std::string const start =
        "start 0x2440008\n"
        "base 0x2440002 {\n"
        "  start 0x2440002\n"
        "  text 0:timeSpan=STEP\n"
        "}\n"
        "double 0:smooth=0.25\n"
        "field 1:data {\n"
        "  start 0x230001\n"
        "  check 82\n"
        "  array 0x0\n"
        "}\n";
    EXPECT_EQ(log.Write(tabular), start + "null 2:baselineCorrection\n");
    EXPECT_EQ(log.Write(tabular), "start 0x2440008 again\n");

    tabular.uid.NewUid();
    tabular.kamC_Amplitude::uid.NewUid();
    tabular.data.uid.NewUid();
    tabular.baselineCorrection = new kamC_BaselineCorrection;
    EXPECT_EQ(log.Write(tabular), start +
                                      "field 2:baselineCorrection with handle {\n"
                                      "  start 0x2440001\n"
                                      "  field 0:intervals {\n"
                                      "    start 0x230001\n"
                                      "    check 52\n"
                                      "    doubles\n"
                                      "  }\n"
                                      "}\n");
}

TEST(Records, OfAProfilesBaseHaveNoField) {
    kbpC_CircularProfile circle;
    circle.r = 2.0;
    EXPECT_EQ(nga_test::WriteLog().Write(circle),
              "start 0x2640003\n"
              "base 0x2640001 {\n"
              "  start 0x2640001\n"
              "}\n"
              "double 0:r=2\n");
}

TEST(Records, OfAFilterBeginWithItsBase) {
    kflC_Chebyshev1Filter filter;
    filter.cutoffFrequency = 10.0;
    filter.rippleFactor = 0.5;
    EXPECT_EQ(nga_test::WriteLog().Write(filter),
              "start 0x3510004\n"
              "base 0x3510002 {\n"
              "  start 0x3510002\n"
              "  double 0:cutoffFrequency=10\n"
              "  int 1:order=2\n"
              "}\n"
              "double 0:rippleFactor=0.5\n");
}

TEST(Records, OfAnAmplitudeAreReadWithZeroForAMissingNumber) {
    nga_test::StoredObject stored;
    stored.texts["timeSpan"] = "TOTAL";
    cls_ReadVisitor const visitor(stored.Memento());
    kamC_Tabular const tabular(visitor);
    EXPECT_EQ(tabular.timeSpan, kamC_Amplitude::TimeSpanEnm::TOTAL);
    EXPECT_EQ(tabular.smooth, 0.0);
    EXPECT_TRUE(tabular.baselineCorrection.IsNull());
    EXPECT_EQ(tabular.uid, stored.uid);
    EXPECT_EQ(tabular.kamC_Amplitude::uid, stored.uid);
    EXPECT_EQ(stored.lines,
              "literal 0:timeSpan\n"
              "uid\n"
              "double 0:smooth or 0\n"
              "field 1:data\n"
              "object 2:baselineCorrection 0x2440001\n"
              "uid\n");
}

TEST(Records, OfAnAmplitudeWithoutAKnownTimeSpanAreRefused) {
    for (char const* literal : {"SOMETIME", "step", ""}) {
        nga_test::StoredObject stored;
        stored.texts["timeSpan"] = literal;
        cls_ReadVisitor const visitor(stored.Memento());
        EXPECT_THROW(kamC_Decay{visitor}, omu_ValueErrorException) << literal;
    }
}

TEST(Records, OfAFilterAreReadWithZeroForAMissingNumber) {
    nga_test::StoredObject stored;
    stored.doubles["cutoffFrequency"] = 3.0;
    cls_ReadVisitor const visitor(stored.Memento());
    kflC_Chebyshev2Filter const filter(visitor);
    EXPECT_EQ(filter.cutoffFrequency, 3.0);
    EXPECT_EQ(filter.order, 0);
    EXPECT_EQ(filter.rippleFactor, 0.0);
    EXPECT_EQ(filter.kflC_Filter::uid, stored.uid);
}

}  // namespace deep_copy_test
