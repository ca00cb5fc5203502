#include "nga_Curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "DDB_NonGeometricAttributes.h"
#include "nga_Start.h"
#include "tables.h"

namespace {

using nga::Curve;
using nga::CurveOf;
using nga::Point;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class ACurve : public testing::Test {
protected:
    static void SetUpTestSuite() { nga::Start(); }
};

std::vector<Point> Points(Curve const& curve) {
    EXPECT_EQ(curve.none, "");
    EXPECT_EQ(curve.lines.size(), 1u);
    return curve.lines.empty() ? std::vector<Point>() : curve.lines[0].points;
}

/// What a reader of the drawn line sees at a time; of a jump, the later value.
double ValueAt(Curve const& curve, double x) {
    std::vector<Point> const points = Points(curve);
    for (std::size_t i = points.size() - 1; i > 0; --i) {
        Point const& a = points[i - 1];
        Point const& b = points[i];
        if (x >= b.x && i + 1 == points.size()) return b.y;
        if (x == b.x) return b.y;
        if (x > a.x && x < b.x) return a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
    }
    return points.front().y;
}

bool Mentions(std::string const& text, char const* word) {
    return text.find(word) != std::string::npos;
}

}  // namespace

TEST_F(ACurve, OfATableIsStraightBetweenPointsAndConstantOutside) {
    kamC_Tabular amplitude;
    amplitude.smooth = 0;
    amplitude.data = Table({{10, 1}, {20, 5}, {40, -5}});
    Curve const curve = CurveOf(amplitude);
    std::vector<Point> const points = Points(curve);
    EXPECT_LT(points.front().x, 10);
    EXPECT_GE(points.front().x, 0);
    EXPECT_EQ(points.front().y, 1);
    EXPECT_GT(points.back().x, 40);
    EXPECT_EQ(points.back().y, -5);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 15), 3);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 20), 5);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 30), 0);
    EXPECT_EQ(curve.note, "");
    EXPECT_EQ(curve.across, "step time");
    EXPECT_FALSE(curve.logarithmic);
}

TEST_F(ACurve, DoesNotReachBeforeTimeZeroUnlessItsPointsDo) {
    kamC_Tabular amplitude;
    amplitude.data = Table({{0, 1}, {1, 2}});
    EXPECT_EQ(Points(CurveOf(amplitude)).front().x, 0);
    amplitude.data = Table({{-2, 1}, {1, 2}});
    EXPECT_LT(Points(CurveOf(amplitude)).front().x, -2);
}

TEST_F(ACurve, OfATableMayJump) {
    kamC_Tabular amplitude;
    amplitude.data = Table({{0, 0}, {1, 0}, {1, 1}, {2, 1}});
    Curve const curve = CurveOf(amplitude);
    EXPECT_EQ(ValueAt(curve, 0.999), 0);
    EXPECT_EQ(ValueAt(curve, 1.001), 1);
    // All at one time: still something to see before and after.
    amplitude.data = Table({{0, 3}, {0, 4}});
    EXPECT_GT(Points(CurveOf(amplitude)).back().x, 0);
}

TEST_F(ACurve, OfEquallySpacedValuesBeginsAtItsBegin) {
    kamC_EquallySpaced amplitude;
    amplitude.timeSpan = kamC_Amplitude::TimeSpanEnm::TOTAL;
    amplitude.begin = 5;
    amplitude.fixedInterval = 0.5;
    for (double const value : {1.0, 3.0, 2.0}) amplitude.data.Append(value);
    Curve const curve = CurveOf(amplitude);
    EXPECT_EQ(ValueAt(curve, 5), 1);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 5.25), 2);
    EXPECT_EQ(ValueAt(curve, 5.5), 3);
    EXPECT_EQ(ValueAt(curve, 6), 2);
    EXPECT_EQ(curve.across, "total time");
}

TEST_F(ACurve, SaysWhichCorrectionsItLacks) {
    kamC_Tabular amplitude;
    amplitude.data = Table({{0, 1}, {1, 2}});
    EXPECT_EQ(CurveOf(amplitude).note, "without the smoothing that the solver may apply");
    amplitude.smooth = 0.25;
    amplitude.baselineCorrection = new kamC_BaselineCorrection;
    EXPECT_EQ(CurveOf(amplitude).note, "without its smoothing; without its baseline correction");
    EXPECT_DOUBLE_EQ(ValueAt(CurveOf(amplitude), 0.5), 1.5);
    amplitude.smooth = 0;
    EXPECT_EQ(CurveOf(amplitude).note, "without its baseline correction");
}

TEST_F(ACurve, OfASmoothStepHasNeitherSlopeNorCurvatureAtItsPoints) {
    kamC_SmoothStep amplitude;
    amplitude.data = Table({{1, 2}, {5, 10}});
    Curve const curve = CurveOf(amplitude);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 3), 6);
    // (1/4)^3 (10 - 15/4 + 6/16) = 53/512
    EXPECT_DOUBLE_EQ(ValueAt(curve, 2), 2 + 8 * 53.0 / 512);
    EXPECT_DOUBLE_EQ(ValueAt(curve, 4), 10 - 8 * 53.0 / 512);
    EXPECT_EQ(ValueAt(curve, 0.99), 2);
    EXPECT_EQ(ValueAt(curve, 5.1), 10);
    // A cubic beginning: ten times as near, a thousand times as small.
    std::vector<Point> const points = Points(curve);
    auto const at = std::find_if(points.begin(), points.end(), [](Point p) { return p.x > 1; });
    double const xi = (at->x - 1) / 4;
    EXPECT_NEAR((at->y - 2) / 8, 10 * xi * xi * xi, 2 * 15 * xi * xi * xi * xi);
    EXPECT_TRUE(
        std::is_sorted(points.begin(), points.end(), [](Point a, Point b) { return a.y < b.y; }));
}

TEST_F(ACurve, OfASeriesIsItsSumAndRepeats) {
    kamC_Periodic amplitude;
    amplitude.frequency = 2.5;
    amplitude.start = 3;
    amplitude.a_0 = 0.5;
    amplitude.data = Table({{0.3, -1}, {0, 0}, {0.25, 0.75}, {0, 0}});
    Curve const curve = CurveOf(amplitude);
    double const period = 2 * 3.14159265358979323846 / 2.5;
    std::vector<Point> const points = Points(curve);
    EXPECT_LT(points.front().x, 3);
    EXPECT_NEAR(points.back().x, 3 + 2 * period, 1e-12);
    EXPECT_EQ(ValueAt(curve, 2.9), 0.5);
    int after = 0;
    for (std::size_t i = 2; i < points.size(); ++i) {
        double const t = points[i].x - 3;
        double const sum = 0.5 + 0.3 * std::cos(2.5 * t) - std::sin(2.5 * t) +
                           0.25 * std::cos(7.5 * t) + 0.75 * std::sin(7.5 * t);
        ASSERT_NEAR(points[i].y, sum, 1e-12) << t;
        ++after;
    }
    EXPECT_GT(after, 100);
}

TEST_F(ACurve, OfANegativeFrequencyRunsTheSinesBackwards) {
    kamC_Periodic amplitude;
    amplitude.frequency = -1;
    amplitude.data = Table({{0, 1}});
    EXPECT_NEAR(ValueAt(CurveOf(amplitude), 1), -std::sin(1.0), 1e-3);
}

TEST_F(ACurve, OfAFrequencyOfZeroIsConstantAfterItsStart) {
    kamC_Periodic amplitude;
    amplitude.start = 1;
    amplitude.a_0 = 2;
    amplitude.data = Table({{1, 5}, {0.5, 5}});
    Curve const curve = CurveOf(amplitude);
    EXPECT_EQ(ValueAt(curve, 0.95), 2);
    EXPECT_EQ(ValueAt(curve, 1.05), 3.5);
    EXPECT_TRUE(Mentions(curve.note, "frequency is zero"));
}

TEST_F(ACurve, OfMoreTermsThanCanBeDrawnIsRefused) {
    kamC_Periodic amplitude;
    amplitude.frequency = 1;
    amplitude.data = cls_xp2DArrayDouble(100000, 2);
    amplitude.data.Get().Cell(3, 1) = 1;
    EXPECT_EQ(CurveOf(amplitude).none, "");
    amplitude.data.Get().Cell(99999, 1) = 1;
    EXPECT_TRUE(Mentions(CurveOf(amplitude).none, "terms"));
}

TEST_F(ACurve, OfAModulatedAmplitudeIsTheBeatOfSumAndDifference) {
    kamC_Modulated amplitude;
    amplitude.initial = 4;
    amplitude.magnitude = 3;
    amplitude.start = 0.25;
    amplitude.frequency1 = 50;
    amplitude.frequency2 = 40;
    Curve const curve = CurveOf(amplitude);
    std::vector<Point> const points = Points(curve);
    EXPECT_EQ(points.front().y, 4);
    for (std::size_t i = 1; i < points.size(); ++i) {
        double const t = points[i].x - 0.25;
        ASSERT_NEAR(points[i].y, 4 + 1.5 * (std::cos(10 * t) - std::cos(90 * t)), 1e-12);
    }
    EXPECT_NEAR(points.back().x - 0.25, 2 * 3.14159265358979323846 / 10, 1e-12);
    EXPECT_EQ(curve.note, "");
}

TEST_F(ACurve, OfALongBeatShowsItsBeginning) {
    kamC_Modulated amplitude;
    amplitude.magnitude = 1;
    amplitude.frequency1 = 1000;
    amplitude.frequency2 = 999.999;
    EXPECT_TRUE(Mentions(CurveOf(amplitude).note, "beginning"));
    EXPECT_LT(Points(CurveOf(amplitude)).size(), 2000u);
    amplitude.frequency2 = 0;
    EXPECT_TRUE(Mentions(CurveOf(amplitude).note, "constant"));
    EXPECT_EQ(ValueAt(CurveOf(amplitude), 1), 0);
}

TEST_F(ACurve, OfAFastSineInASlowOneIsDrawnOverAHumpOfTheSlowOne) {
    double const pi = 3.14159265358979323846;
    kamC_Modulated amplitude;
    amplitude.magnitude = 2;
    amplitude.frequency1 = 150;
    amplitude.frequency2 = -10;
    Curve const curve = CurveOf(amplitude);
    std::vector<Point> const points = Points(curve);
    EXPECT_NEAR(points.back().x, pi / 10, 1e-12);
    EXPECT_EQ(curve.note, "");
    double highest = 0;
    for (Point const& p : points) {
        ASSERT_NEAR(p.y, 2 * std::sin(150 * p.x) * std::sin(-10 * p.x), 1e-12);
        highest = std::max(highest, std::fabs(p.y));
    }
    EXPECT_GT(highest, 1.9) << "the middle of the hump";
    std::swap(amplitude.frequency1, amplitude.frequency2);
    EXPECT_EQ(Points(CurveOf(amplitude)).size(), points.size());
    // 250 oscillations are too many.
    amplitude.frequency1 = 1000;
    amplitude.frequency2 = 1;
    EXPECT_EQ(CurveOf(amplitude).note, "the beginning of a beat");
    EXPECT_NEAR(Points(CurveOf(amplitude)).back().x, 40 * 2 * pi / 1001, 1e-12);
    // Of equal ones there is no difference: a square of a sine.
    amplitude.frequency1 = amplitude.frequency2 = 5;
    EXPECT_NEAR(Points(CurveOf(amplitude)).back().x, 3 * 2 * pi / 10, 1e-12);
    EXPECT_EQ(CurveOf(amplitude).note, "");
}

TEST_F(ACurve, FarFromTimeZeroCountsFromItsStart) {
    kamC_Modulated amplitude;
    amplitude.initial = 1;
    amplitude.magnitude = 1;
    amplitude.start = 1e8;
    amplitude.frequency1 = 6283;
    amplitude.frequency2 = 700;
    Curve curve = CurveOf(amplitude);
    std::vector<Point> points = Points(curve);
    EXPECT_LT(points.front().x, 0);
    for (std::size_t i = 1; i < points.size(); ++i) {
        double const t = points[i].x;
        ASSERT_NEAR(points[i].y, 1 + std::sin(6283 * t) * std::sin(700 * t), 1e-12);
    }
    EXPECT_EQ(curve.across, "step time from the start");
    EXPECT_EQ(curve.note, "time counts from 1e+08");
    kamC_Decay decay;
    decay.timeSpan = kamC_Amplitude::TimeSpanEnm::TOTAL;
    decay.maximum = 3;
    decay.start = 1e9;
    decay.decayTime = 1e-9;
    curve = CurveOf(decay);
    EXPECT_NEAR(ValueAt(curve, 1e-9), 3 / 2.718281828459045, 1e-3);
    EXPECT_EQ(curve.across, "total time from the start");
    kamC_Periodic series;
    series.start = -1e8;
    series.frequency = 1e4;
    series.data = Table({{0, 1}});
    curve = CurveOf(series);
    EXPECT_NEAR(ValueAt(curve, 1e-4), std::sin(1.0), 1e-3);
    EXPECT_EQ(curve.note, "time counts from -1e+08");
    kamC_Tabular table;
    table.smooth = 0;
    table.data = Table({{1e6, 0}, {1e6 + 0.25, 1}});
    curve = CurveOf(table);
    EXPECT_EQ(ValueAt(curve, 0.125), 0.5);
    EXPECT_LT(Points(curve).front().x, 0);
    EXPECT_EQ(curve.note, "time counts from 1e+06");
    kamC_EquallySpaced values;
    values.begin = 1e12;
    values.fixedInterval = 1e-5;
    for (double const value : {1.0, 3.0, 2.0}) values.data.Append(value);
    curve = CurveOf(values);
    EXPECT_EQ(ValueAt(curve, 1e-5), 3);
    EXPECT_EQ(ValueAt(curve, 2e-5), 2);
    EXPECT_TRUE(Mentions(curve.note, "time counts from 1e+12"));
    // Near enough for the numbers at an axis.
    decay.start = 1;
    decay.decayTime = 0.001;
    EXPECT_EQ(CurveOf(decay).note, "");
    EXPECT_EQ(CurveOf(decay).across, "total time");
}

TEST_F(ACurve, OfADecayFallsToAnEthInItsDecayTime) {
    kamC_Decay amplitude;
    amplitude.initial = 1;
    amplitude.maximum = 2;
    amplitude.start = 3;
    amplitude.decayTime = 0.5;
    Curve const curve = CurveOf(amplitude);
    EXPECT_EQ(ValueAt(curve, 2.9), 1);
    EXPECT_EQ(ValueAt(curve, 3), 3);
    EXPECT_NEAR(ValueAt(curve, 3.5), 1 + 2 / 2.718281828459045, 1e-12);
    for (double const none : {0.0, -1.0, notANumber}) {
        amplitude.decayTime = none;
        EXPECT_TRUE(Mentions(CurveOf(amplitude).none, "decay time")) << none;
    }
}

TEST_F(ACurve, OfADensityIsOverFrequency) {
    kamC_PsdDefinition amplitude;
    amplitude.table = Table({{0.01, 0, 20}, {0.04, 0, 80}, {0.007, 0, 2000}});
    Curve curve = CurveOf(amplitude);
    ASSERT_EQ(curve.lines.size(), 1u);
    EXPECT_EQ(curve.lines[0].points[1].x, 80);
    EXPECT_EQ(curve.lines[0].points[1].y, 0.04);
    EXPECT_TRUE(curve.logarithmic);
    EXPECT_TRUE(curve.logarithmicUp);
    EXPECT_EQ(curve.note, "");
    EXPECT_EQ(curve.across, "frequency");
    amplitude.type = kamC_PsdDefinition::PsdTypeEnm::DB;
    EXPECT_TRUE(CurveOf(amplitude).logarithmic);
    EXPECT_FALSE(CurveOf(amplitude).logarithmicUp) << "decibels are logarithms";
    EXPECT_EQ(CurveOf(amplitude).note, "");
    amplitude.type = kamC_PsdDefinition::PsdTypeEnm::BASE;
    amplitude.table = Table({{0, 0, 20}, {0.04, 0, 80}});
    EXPECT_TRUE(CurveOf(amplitude).logarithmic);
    EXPECT_FALSE(CurveOf(amplitude).logarithmicUp);
    EXPECT_EQ(CurveOf(amplitude).note, "on a plain axis upwards, since a value is not positive");
    amplitude.table = Table({{0.01, 0, 0}, {0.04, -0.5, 80}});
    curve = CurveOf(amplitude);
    ASSERT_EQ(curve.lines.size(), 2u);
    EXPECT_EQ(curve.lines[1].name, "imaginary part");
    EXPECT_EQ(curve.lines[1].points[1].y, -0.5);
    EXPECT_FALSE(curve.logarithmic) << "zero has no logarithm";
    EXPECT_FALSE(curve.logarithmicUp);
    EXPECT_EQ(curve.note, "on plain axes, since a frequency is not positive");
}

TEST_F(ACurve, OfASpectrumHasALineForEachDampingRatio) {
    kamC_Spectrum amplitude;
    amplitude.type = kamC_Spectrum::SpectrumTypeEnm::VELOCITY;
    amplitude.table = Table({{1, 0.5, 0.02}, {2, 5, 0.02}, {0.8, 0.5, 0.05}, {1.5, 5, 0.05}});
    Curve const curve = CurveOf(amplitude);
    ASSERT_EQ(curve.lines.size(), 2u);
    EXPECT_EQ(curve.lines[1].name, "damping ratio 0.05");
    EXPECT_EQ(curve.lines[1].points[1].x, 5);
    EXPECT_EQ(curve.lines[1].points[1].y, 1.5);
    EXPECT_EQ(curve.up, "velocity");
    EXPECT_TRUE(curve.logarithmic);
    EXPECT_TRUE(curve.logarithmicUp);
}

TEST_F(ACurve, OfWhatNobodyKnowsBeforehandIsMissingWithAWordWhy) {
    EXPECT_TRUE(Mentions(CurveOf(kamC_SolutionDependent()).none, "solver"));
    EXPECT_TRUE(Mentions(CurveOf(kamC_UserAmplitude()).none, "subroutine"));
    EXPECT_TRUE(Mentions(CurveOf(kamC_ActuatorAmplitude()).none, "outside"));
    EXPECT_TRUE(Mentions(CurveOf(kamC_PsdDefinition()).none, "empty"));
    kamC_PsdDefinition user;
    user.user = true;
    EXPECT_TRUE(Mentions(CurveOf(user).none, "subroutine"));
}

TEST_F(ACurve, OfAnInvalidAmplitudeIsMissingWithItsRule) {
    EXPECT_EQ(CurveOf(kamC_Tabular()).none,
              "it breaks a rule: The Time-Amplitude table should have at least two rows of data.");
    kamC_Tabular backwards;
    backwards.data = Table({{1, 0}, {0, 1}});
    EXPECT_TRUE(Mentions(CurveOf(backwards).none, "monotonically"));
    EXPECT_NE(CurveOf(kamC_Spectrum()).none, "");
    EXPECT_NE(CurveOf(kamC_Periodic()).none, "");
    EXPECT_NE(CurveOf(kamC_EquallySpaced()).none, "");
    // The message of a part's rule has two lines, of which one is made.
    kamC_Tabular corrected;
    corrected.data = Table({{0, 1}, {1, 2}});
    corrected.baselineCorrection = new kamC_BaselineCorrection;
    corrected.baselineCorrection.Get().intervals.Append(-1);
    EXPECT_TRUE(Mentions(CurveOf(corrected).none, "monotonically"));
    EXPECT_EQ(CurveOf(corrected).none.find('\n'), std::string::npos);
}

TEST_F(ACurve, OfNumbersThatAreNoneIsMissing) {
    // The rules let these pass.
    for (double const odd : {notANumber, infinity, -infinity}) {
        kamC_Tabular tabular;
        tabular.data = Table({{0, odd}, {1, 2}});
        EXPECT_TRUE(Mentions(CurveOf(tabular).none, "not finite")) << odd;
        kamC_SmoothStep step;
        step.data = Table({{0, 1}, {1, odd}});
        EXPECT_NE(CurveOf(step).none, "") << odd;
        kamC_Modulated modulated;
        modulated.frequency1 = modulated.frequency2 = modulated.magnitude = 1;
        modulated.start = odd;
        EXPECT_NE(CurveOf(modulated).none, "") << odd;
        modulated.start = 0;
        modulated.frequency1 = odd;
        EXPECT_NE(CurveOf(modulated).none, "") << odd;
        kamC_Periodic periodic;
        periodic.frequency = 1;
        periodic.data = Table({{1, odd}});
        EXPECT_NE(CurveOf(periodic).none, "") << odd;
        kamC_PsdDefinition density;
        density.table = Table({{1, 0, 1}, {1, 0, odd}});
        EXPECT_NE(CurveOf(density).none, "") << odd;
        kamC_Spectrum spectrum;
        spectrum.table = Table({{1, 1, odd}});
        EXPECT_NE(CurveOf(spectrum).none, "") << odd;
    }
    kamC_Tabular time;
    time.data = Table({{0, 1}, {notANumber, 2}});
    EXPECT_NE(CurveOf(time).none, "");
    kamC_Tabular narrow;
    narrow.data = Table({{0}, {1}});
    EXPECT_TRUE(Mentions(CurveOf(narrow).none, "columns"));
    kamC_Periodic narrowSeries;
    narrowSeries.data = Table({{1}});
    EXPECT_TRUE(Mentions(CurveOf(narrowSeries).none, "columns"));
}

TEST_F(ACurve, BeyondTheRangeOfNumbersIsMissing) {
    kamC_EquallySpaced amplitude;
    amplitude.begin = 1e308;
    amplitude.fixedInterval = 1e308;
    for (int i = 0; i < 3; ++i) amplitude.data.Append(1);
    EXPECT_NE(CurveOf(amplitude).none, "");
    kamC_Periodic slow;
    slow.frequency = 1e-320;
    slow.data = Table({{1, 1}});
    EXPECT_NE(CurveOf(slow).none, "");
    kamC_Decay high;
    high.initial = high.maximum = 1.5e308;
    high.decayTime = 1;
    EXPECT_NE(CurveOf(high).none, "");
}
