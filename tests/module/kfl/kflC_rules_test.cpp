#include "module/RuleBreaks.h"

namespace kflC_rules_test {

using nga_test::aNaN;
using nga_test::CodeRaisedBy;
using nga_test::ExpectRules;
using nga_test::passes;

template <class T>
T Valid() {
    T filter;
    filter.cutoffFrequency = 100.0;
    return filter;
}

TEST(FilterRules, InTheirOrder) {
    ExpectRules<kflC_ButterworthFilter>(
        Valid<kflC_ButterworthFilter>(),
        {{0, [](kflC_ButterworthFilter& f) { f.cutoffFrequency = 0.0; }},
         {1, [](kflC_ButterworthFilter& f) { f.order = 21; }}});
    ExpectRules<kflC_Chebyshev1Filter>(
        Valid<kflC_Chebyshev1Filter>(),
        {{0, [](kflC_Chebyshev1Filter& f) { f.cutoffFrequency = -1.0; }},
         {2, [](kflC_Chebyshev1Filter& f) { f.rippleFactor = 0.0; }},
         {1, [](kflC_Chebyshev1Filter& f) { f.order = 0; }}});
    ExpectRules<kflC_Chebyshev2Filter>(
        Valid<kflC_Chebyshev2Filter>(),
        {{0, [](kflC_Chebyshev2Filter& f) { f.cutoffFrequency = aNaN; }},
         {3, [](kflC_Chebyshev2Filter& f) { f.rippleFactor = 5.0; }},
         {1, [](kflC_Chebyshev2Filter& f) { f.order = -1; }}});
}

TEST(FilterRules, ADefaultFilterFailsAtItsFrequency) {
    EXPECT_EQ(CodeRaisedBy(kflC_ButterworthFilter()), 0);
    EXPECT_EQ(CodeRaisedBy(kflC_Chebyshev1Filter()), 0);
    EXPECT_EQ(CodeRaisedBy(kflC_Chebyshev2Filter()), 0);
}

template <class T>
int VerdictOfOrder(int order) {
    T filter = Valid<T>();
    filter.order = order;
    return CodeRaisedBy(filter);
}

TEST(FilterRules, TheOrderIsOneToTwenty) {
    for (auto const& [order, code] :
         std::vector<std::pair<int, int>>{{1, passes},
                                          {2, passes},
                                          {20, passes},
                                          {21, 1},
                                          {0, 1},
                                          {-1, 1},
                                          {std::numeric_limits<int>::max(), 1},
                                          {std::numeric_limits<int>::min(), 1}}) {
        EXPECT_EQ(VerdictOfOrder<kflC_ButterworthFilter>(order), code) << order;
        EXPECT_EQ(VerdictOfOrder<kflC_Chebyshev1Filter>(order), code) << order;
        EXPECT_EQ(VerdictOfOrder<kflC_Chebyshev2Filter>(order), code) << order;
    }
}

template <class T>
int VerdictOfRipple(double ripple) {
    T filter = Valid<T>();
    filter.rippleFactor = ripple;
    return CodeRaisedBy(filter);
}

TEST(FilterRules, TheRippleHasAnUpperBoundInTheSecondKindOnly) {
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev1Filter>(5.0), passes);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev1Filter>(std::numeric_limits<double>::infinity()),
              passes);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev1Filter>(0.0), 2);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev1Filter>(-1.0), 2);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev1Filter>(aNaN), 2);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev2Filter>(5.0), 3);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev2Filter>(1.0), passes);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev2Filter>(std::nextafter(1.0, 2.0)), 3);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev2Filter>(0.0), 3);
    EXPECT_EQ(VerdictOfRipple<kflC_Chebyshev2Filter>(aNaN), 3);
}

TEST(FilterRules, AreRaisedAtTheirPlace) {
    try {
        kflC_ButterworthFilter().AssertValid();
        ADD_FAILURE() << "nothing thrown";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), "generated/module/kfl/com/impl/kflC_assert");
        EXPECT_EQ(failure.Line(), 48);
    }
}

}  // namespace kflC_rules_test
