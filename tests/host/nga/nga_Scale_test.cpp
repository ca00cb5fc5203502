#include "nga_Scale.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

namespace {

using nga::Scale;

std::vector<std::string> Texts(std::vector<Scale::Tick> const& ticks) {
    std::vector<std::string> texts;
    for (Scale::Tick const& tick : ticks) texts.push_back(tick.text);
    return texts;
}

using Words = std::vector<std::string>;

}  // namespace

TEST(AScale, HasRoundNumbersAtTheirPlaces) {
    Scale const scale = Scale::Of(0, 10);
    EXPECT_EQ(Texts(scale.Ticks(5)), (Words{"0", "2", "4", "6", "8", "10"}));
    EXPECT_DOUBLE_EQ(scale.Ticks(5)[1].place, 0.2);
    EXPECT_EQ(Texts(Scale::Of(-0.3, 0.31).Ticks(5)), (Words{"-0.2", "0", "0.2"}));
    // One number at an axis would say nothing.
    EXPECT_EQ(Texts(Scale::Of(0.12, 0.19).Ticks(1)), (Words{"0.12", "0.14", "0.16", "0.18"}));
}

TEST(AScale, WritesGreatAndSmallNumbersWithTheirPowerOfTen) {
    EXPECT_EQ(Texts(Scale::Of(0, 2e11).Ticks(4)),
              (Words{"0", "5.0e+10", "1.0e+11", "1.5e+11", "2.0e+11"}));
    EXPECT_EQ(Texts(Scale::Of(0, 2e-7).Ticks(2)), (Words{"0", "1e-07", "2e-07"}));
    EXPECT_EQ(Texts(Scale::Of(1000000, 1000002).Ticks(2)),
              (Words{"1.000000e+06", "1.000001e+06", "1.000002e+06"}));
}

TEST(AScale, RoundedReachesWholeStepsAndNoFurther) {
    EXPECT_EQ(Texts(Scale::Rounded(-1, 1, 4).Ticks(4)), (Words{"-1.0", "-0.5", "0", "0.5", "1.0"}));
    EXPECT_DOUBLE_EQ(Scale::Rounded(-1, 1, 4).Place(-1), 0);
    EXPECT_DOUBLE_EQ(Scale::Rounded(-1, 1, 4).Place(1), 1);
    Scale const wider = Scale::Rounded(0.1, 9.7, 5);
    EXPECT_DOUBLE_EQ(wider.Place(0), 0);
    EXPECT_DOUBLE_EQ(wider.Place(10), 1);
}

TEST(AScale, OfOneNumberSpreadsAroundIt) {
    for (double const value : {1.0, -3.0, 1e200, -1e-200, DBL_MAX, -DBL_MAX, 1e15}) {
        Scale const scale = Scale::Rounded(value, value, 4);
        // Beyond the last number there is nothing to spread to.
        double const room = std::fabs(value) == DBL_MAX ? 0.0 : 0.2;
        EXPECT_GE(scale.Place(value), room) << value;
        EXPECT_LE(scale.Place(value), 1 - room) << value;
        EXPECT_GE(scale.Ticks(4).size(), 2u) << value;
    }
    EXPECT_DOUBLE_EQ(Scale::Of(0, 0).Place(0), 0.5);
    // What differs by rounding alone is one number.
    EXPECT_NEAR(Scale::Of(1, 1 + 1e-15).Place(1), 0.5, 1e-9);
    EXPECT_DOUBLE_EQ(Scale::Of(5e-324, 5e-324).Place(5e-324), 0.5);
}

TEST(AScale, HoldsTheWholeRangeOfNumbers) {
    for (Scale const& scale :
         {Scale::Of(-DBL_MAX, DBL_MAX), Scale::Rounded(-DBL_MAX, DBL_MAX, 4)}) {
        EXPECT_DOUBLE_EQ(scale.Place(0), 0.5);
        EXPECT_DOUBLE_EQ(scale.Place(DBL_MAX), 1);
        EXPECT_DOUBLE_EQ(scale.Place(-DBL_MAX), 0);
        EXPECT_GE(scale.Ticks(4).size(), 3u);
        for (Scale::Tick const& tick : scale.Ticks(4)) {
            EXPECT_GE(tick.place, 0);
            EXPECT_LE(tick.place, 1);
            EXPECT_EQ(tick.text.find("inf"), std::string::npos);
        }
    }
}

TEST(AScale, OfLogarithmsHasDecades) {
    Scale const scale = Scale::Of(1, 1000, true);
    EXPECT_NEAR(scale.Place(10), 1 / 3.0, 1e-15);
    EXPECT_EQ(Texts(scale.Ticks(4)), (Words{"1", "10", "100", "1000"}));
    EXPECT_EQ(Texts(Scale::Of(20, 2000, true).Ticks(6)),
              (Words{"20", "50", "100", "200", "500", "1000", "2000"}));
    EXPECT_EQ(Texts(Scale::Of(1e-12, 1e12, true).Ticks(4)), (Words{"1e-07", "1", "1e+07"}));
    EXPECT_EQ(Texts(Scale::Of(1, 10, true).Ticks(6)), (Words{"1", "2", "5", "10"}));
    EXPECT_GE(Scale::Of(40, 45, true).Ticks(4).size(), 2u) << "less than a decade";
    for (double const only : {DBL_MIN, 1.0, DBL_MAX, 5e-324}) {
        Scale const one = Scale::Of(only, only, true);
        EXPECT_GE(one.Place(only), 0.0) << only;
        EXPECT_LE(one.Place(only), 1.0) << only;
        EXPECT_LT(one.Ticks(4).size(), 20u) << only;
    }
}

TEST(AScale, RoundedHasATickAtEitherEnd) {
    auto const expectEnds = [](Scale const& scale, std::string const& what) {
        std::vector<Scale::Tick> const ticks = scale.Ticks(4);
        ASSERT_GE(ticks.size(), 2u) << what;
        EXPECT_NEAR(ticks.front().place, 0, 1e-9) << what;
        EXPECT_NEAR(ticks.back().place, 1, 1e-9) << what;
        EXPECT_LE(ticks.size(), 8u) << what;
    };
    // What the first wants in steps of 0.2 becomes an axis that would have steps of 0.5.
    for (int low = -30; low < 30; ++low)
        for (int length = 1; length < 40; ++length)
            for (int const wanted : {4, 6}) {
                double const from = low * 0.037;
                double const to = from + length * 0.041;
                expectEnds(Scale::Rounded(from, to, wanted),
                           std::to_string(from) + " to " + std::to_string(to));
            }
    for (double const low : {1.0, 0.007, 0.125, 1e-12, 3e5})
        for (double const factor : {1.001, 3.0, 20.0, 99.0, 1e3, 1e5, 1e11})
            expectEnds(Scale::Rounded(low, low * factor, 4, true),
                       std::to_string(low) + " times " + std::to_string(factor));
}

TEST(AScale, RoundedOnLogarithmsEndsAtOneTwoFiveOrADecade) {
    EXPECT_EQ(Texts(Scale::Rounded(0.125, 2.5, 4, true).Ticks(4)),
              (Words{"0.1", "0.2", "0.5", "1", "2", "5"}));
    EXPECT_EQ(Texts(Scale::Rounded(0.03, 700, 4, true).Ticks(4)),
              (Words{"0.01", "0.1", "1", "10", "100", "1000"}));
    EXPECT_EQ(Texts(Scale::Rounded(1e-9, 10, 4, true).Ticks(4)),
              (Words{"1e-10", "1e-08", "1e-06", "0.0001", "0.01", "1", "100"}));
    for (double const low : {5e-324, DBL_MIN, 1.0, 1e300, DBL_MAX})
        for (double const high : {low, 1e-300, 1.0, 7e300, DBL_MAX}) {
            if (high < low) continue;
            Scale const scale = Scale::Rounded(low, high, 4, true);
            EXPECT_GE(scale.Place(low), 0.0);
            EXPECT_LE(scale.Place(high), 1.0);
            EXPECT_LT(scale.Ticks(4).size(), 20u);
            for (Scale::Tick const& tick : scale.Ticks(4))
                EXPECT_EQ(tick.text.find("inf"), std::string::npos) << low << ' ' << high;
        }
}
