#include "module/RuleBreaks.h"

namespace kamC_rules_test {

using nga_test::aNaN;
using nga_test::ArrayOf;
using nga_test::CodeRaisedBy;
using nga_test::ExpectRules;
using nga_test::ListOf;
using nga_test::passes;

kamC_BaselineCorrection Correction(std::vector<double> const& intervals) {
    kamC_BaselineCorrection correction;
    correction.intervals = ListOf(intervals);
    return correction;
}
kamC_Tabular Tabular(std::vector<std::vector<double>> const& rows) {
    kamC_Tabular tabular;
    tabular.data = ArrayOf(rows);
    return tabular;
}
kamC_SmoothStep SmoothStep(std::vector<std::vector<double>> const& rows) {
    kamC_SmoothStep step;
    step.data = ArrayOf(rows);
    return step;
}

TEST(AmplitudeRules, OfTabularInTheirOrder) {
    ExpectRules<kamC_Tabular>(Tabular({{0, 1}, {1, 2}}),
                              {{2, [](kamC_Tabular& a) { a.smooth = 0.51; }},
                               {11,
                                [](kamC_Tabular& a) {
                                    // Keeps the fault of the times, if there is one, and the number
                                    // of rows.
                                    cow_2DArray<double> wide(a.data.Rows(), 3);
                                    for (int r = 0; r < a.data.Rows(); ++r)
                                        wide.Get().Cell(r, 0) = a.data.Cell(r, 0);
                                    a.data = wide;
                                }},
                               {12,
                                [](kamC_Tabular& a) {
                                    cow_2DArray<double> one(1, a.data.Columns());
                                    a.data = one;
                                }},
                               {0, [](kamC_Tabular& a) { a.data.Get().Cell(0, 0) = 5.0; }},
                               {19, [](kamC_Tabular& a) {
                                    a.baselineCorrection =
                                        new kamC_BaselineCorrection(Correction({-1}));
                                }}});
}

TEST(AmplitudeRules, OfSmoothStepInTheirOrder) {
    ExpectRules<kamC_SmoothStep>(SmoothStep({{0, 1}, {1, 2}}),
                                 {{11,
                                   [](kamC_SmoothStep& a) {
                                       a.data = ArrayOf({{2, 0, 0}});
                                   }},
                                  {12,
                                   [](kamC_SmoothStep& a) {
                                       a.data = ArrayOf({{2, 0}});
                                   }},
                                  {0, [](kamC_SmoothStep& a) {
                                       a.data = ArrayOf({{2, 0}, {1, 0}});
                                   }}});
}

TEST(AmplitudeRules, OfEquallySpacedInTheirOrder) {
    kamC_EquallySpaced valid;
    valid.fixedInterval = 0.1;
    valid.data = ListOf({1, 2});
    ExpectRules<kamC_EquallySpaced>(
        valid, {{2, [](kamC_EquallySpaced& a) { a.smooth = -0.1; }},
                {9, [](kamC_EquallySpaced& a) { a.fixedInterval = 0.0; }},
                {12, [](kamC_EquallySpaced& a) { a.data = ListOf({1}); }},
                {19, [](kamC_EquallySpaced& a) {
                     a.baselineCorrection = new kamC_BaselineCorrection(Correction({1, 1}));
                 }}});
    valid.begin = aNaN;
    EXPECT_EQ(CodeRaisedBy(valid), passes);
}

TEST(AmplitudeRules, OfPeriodicInTheirOrder) {
    kamC_Periodic valid;
    valid.data = ArrayOf({{1, 2}});
    ExpectRules<kamC_Periodic>(valid,
                               {{22, [](kamC_Periodic& a) { a.data = cow_2DArray<double>(0, 5); }},
                                {11, [](kamC_Periodic& a) {
                                     a.data = ArrayOf({{1, 2, 3}});
                                 }}});
    valid.data = ArrayOf({{1}});
    valid.frequency = aNaN;
    EXPECT_EQ(CodeRaisedBy(valid), passes);
    EXPECT_EQ(CodeRaisedBy(kamC_Periodic()), 22);
}

TEST(AmplitudeRules, OfPowerSpectralDensitiesInTheirOrder) {
    ExpectRules<kamC_PsdDefinition>(kamC_PsdDefinition(),
                                    {{13, [](kamC_PsdDefinition& a) { a.g = -1.0; }},
                                     {14, [](kamC_PsdDefinition& a) { a.dbReference = -1.0; }},
                                     {15, [](kamC_PsdDefinition& a) {
                                          a.table = ArrayOf({{1, 2}});
                                      }}});
    kamC_PsdDefinition psd;
    psd.g = aNaN;
    EXPECT_EQ(CodeRaisedBy(psd), 13);
    psd.g = 0.0;
    psd.dbReference = aNaN;
    EXPECT_EQ(CodeRaisedBy(psd), 14);
    psd.dbReference = 0.0;
    for (int columns = 0; columns < 6; ++columns) {
        psd.table = cow_2DArray<double>(2, columns);
        EXPECT_EQ(CodeRaisedBy(psd), columns == 0 || columns == 3 ? passes : 15) << columns;
    }
}

TEST(AmplitudeRules, OfSpectraInTheirOrder) {
    EXPECT_EQ(CodeRaisedBy(kamC_Spectrum()), 15);
    kamC_Spectrum valid;
    valid.table = ArrayOf({{1, 2, 3}});
    ExpectRules<kamC_Spectrum>(valid, {{13, [](kamC_Spectrum& a) { a.g = aNaN; }},
                                       {15, [](kamC_Spectrum& a) { a.table = ArrayOf({}); }}});
    for (int columns = 0; columns < 6; ++columns) {
        valid.table = cow_2DArray<double>(2, columns);
        EXPECT_EQ(CodeRaisedBy(valid), columns == 3 ? passes : 15) << columns;
    }
}

TEST(AmplitudeRules, SmoothingIsTheLargestDoubleOrFromZeroToAHalf) {
    kamC_Tabular tabular = Tabular({{0, 1}, {1, 2}});
    kamC_EquallySpaced spaced;
    spaced.fixedInterval = 1.0;
    spaced.data = ListOf({0, 0});
    double const largest = std::numeric_limits<double>::max();
    for (auto const& [smooth, code] :
         std::vector<std::pair<double, int>>{{0.0, passes},
                                             {-0.0, passes},
                                             {0.5, passes},
                                             {largest, passes},
                                             {0.51, 2},
                                             {-0.1, 2},
                                             {std::nextafter(0.5, 1.0), 2},
                                             {std::nextafter(largest, 0.0), 2},
                                             {std::numeric_limits<double>::infinity(), 2},
                                             {aNaN, 2}}) {
        tabular.smooth = smooth;
        spaced.smooth = smooth;
        EXPECT_EQ(CodeRaisedBy(tabular), code) << smooth;
        EXPECT_EQ(CodeRaisedBy(spaced), code) << smooth;
    }
}

TEST(AmplitudeRules, TimesMayStandStillAndMayNotFall) {
    EXPECT_EQ(CodeRaisedBy(Tabular({{0, 1}, {0, 2}})), passes);
    EXPECT_EQ(CodeRaisedBy(Tabular({{1, 1}, {0, 2}})), 0);
    EXPECT_EQ(CodeRaisedBy(Tabular({{0, 1}, {1, 2}, {2, 0}, {1.5, 0}})), 0);
    EXPECT_EQ(CodeRaisedBy(SmoothStep({{0, 1}, {0, 2}})), passes);
    EXPECT_EQ(CodeRaisedBy(SmoothStep({{1, 1}, {0, 2}})), 0);
}

TEST(AmplitudeRules, ATimeThatIsNoNumberPasses) {
    EXPECT_EQ(CodeRaisedBy(Tabular({{0, 1}, {aNaN, 2}, {1, 2}})), passes);
    EXPECT_EQ(CodeRaisedBy(Tabular({{aNaN, 1}, {-1, 2}})), passes);
    EXPECT_EQ(CodeRaisedBy(SmoothStep({{0, 1}, {aNaN, 2}, {1, 2}})), passes);
    // It hides a fall from those on its two sides, too.
    EXPECT_EQ(CodeRaisedBy(Tabular({{1, 1}, {aNaN, 2}, {0, 2}})), passes);
}

TEST(AmplitudeRules, TablesOfTooFewAndTooManyColumnsAndRows) {
    EXPECT_EQ(CodeRaisedBy(Tabular({})), 12);
    EXPECT_EQ(CodeRaisedBy(Tabular({{0, 1}})), 12);
    EXPECT_EQ(CodeRaisedBy(Tabular({{0, 1, 2}})), 11);
    EXPECT_EQ(CodeRaisedBy(Tabular({{0}, {1}})), passes);
    for (int rows = 0; rows < 4; ++rows) {
        kamC_Tabular tabular;
        kamC_SmoothStep step;
        tabular.data = cow_2DArray<double>(rows, 0);
        step.data = cow_2DArray<double>(rows, 0);
        EXPECT_EQ(CodeRaisedBy(tabular), rows < 2 ? 12 : 0) << rows;
        EXPECT_EQ(CodeRaisedBy(step), rows < 2 ? 12 : 0) << rows;
    }
}

TEST(AmplitudeRules, ADefaultEquallySpacedFailsAtItsInterval) {
    kamC_EquallySpaced spaced;
    EXPECT_EQ(CodeRaisedBy(spaced), 9);
    spaced.fixedInterval = aNaN;
    EXPECT_EQ(CodeRaisedBy(spaced), 9);
    spaced.fixedInterval = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(CodeRaisedBy(spaced), 12);
}

TEST(AmplitudeRules, BaselineCorrectionsRiseStrictlyFromZero) {
    for (auto const& [intervals, code] :
         std::vector<std::pair<std::vector<double>, int>>{{{}, passes},
                                                          {{0, 1}, passes},
                                                          {{0}, passes},
                                                          {{1, 1}, 19},
                                                          {{-1}, 19},
                                                          {{-1, 2}, 19},
                                                          {{1, 2, 1.5}, 19},
                                                          {{1, 2, 3, 3}, 19},
                                                          {{aNaN}, passes},
                                                          {{0, aNaN}, 19},
                                                          {{aNaN, 1}, 19}}) {
        EXPECT_EQ(CodeRaisedBy(Correction(intervals)), code) << testing::PrintToString(intervals);
        kamC_Tabular tabular = Tabular({{0, 1}, {1, 2}});
        tabular.baselineCorrection = new kamC_BaselineCorrection(Correction(intervals));
        EXPECT_EQ(CodeRaisedBy(tabular), code) << testing::PrintToString(intervals);
    }
}

TEST(AmplitudeRules, SolutionDependentLimitsMayTouch) {
    auto const verdict = [](double initial, double minimum, double maximum) {
        kamC_SolutionDependent amplitude;
        amplitude.initial = initial;
        amplitude.minimum = minimum;
        amplitude.maximum = maximum;
        return CodeRaisedBy(amplitude);
    };
    EXPECT_EQ(CodeRaisedBy(kamC_SolutionDependent()), passes);
    EXPECT_EQ(verdict(2000.0, 0.1, 1000.0), 20);
    EXPECT_EQ(verdict(0.05, 0.1, 1000.0), 20);
    EXPECT_EQ(verdict(1.0, 1.0, 1.0), passes);
    EXPECT_EQ(verdict(-2.0, -3.0, -1.0), passes);
    EXPECT_EQ(verdict(aNaN, 0.1, 1000.0), 20);
    EXPECT_EQ(verdict(1.0, aNaN, 1000.0), 20);
    EXPECT_EQ(verdict(1.0, 0.1, aNaN), 20);
}

TEST(AmplitudeRules, TheOthersAcceptEverything) {
    kamC_Decay decay;
    decay.initial = decay.maximum = decay.start = decay.decayTime = aNaN;
    EXPECT_EQ(CodeRaisedBy(decay), passes);
    kamC_Modulated modulated;
    modulated.frequency1 = modulated.frequency2 = modulated.start = -1.0;
    EXPECT_EQ(CodeRaisedBy(modulated), passes);
    kamC_UserAmplitude user;
    user.numVariables = -5;
    EXPECT_EQ(CodeRaisedBy(user), passes);
    EXPECT_EQ(CodeRaisedBy(kamC_ActuatorAmplitude()), passes);
}

TEST(AmplitudeRules, AreRaisedAtTheirPlace) {
    try {
        kamC_Spectrum().AssertValid();
        ADD_FAILURE() << "nothing thrown";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), "generated/module/kam/com/impl/kamC_assert");
        EXPECT_EQ(failure.Line(), 84);
    }
}

/// Two classes offer AssertValid() as a virtual operation, the others do not.
struct OwnPsd : kamC_PsdDefinition {
    void AssertValid() const override {}
};
struct OwnSpectrum : kamC_Spectrum {
    void AssertValid() const override {}
};

TEST(AmplitudeRules, OfDensitiesAndSpectraAreVirtual) {
    OwnSpectrum const spectrum;
    kamC_Spectrum const& base = spectrum;
    EXPECT_NO_THROW(base.AssertValid());
    OwnPsd psd;
    psd.g = -1.0;
    kamC_PsdDefinition const& psdBase = psd;
    EXPECT_NO_THROW(psdBase.AssertValid());
}

struct OwnTabular : kamC_Tabular {
    void AssertValid() const {}
};

TEST(AmplitudeRules, OfTheOthersAreNotVirtual) {
    OwnTabular const tabular;
    kamC_Tabular const& base = tabular;
    EXPECT_THROW(base.AssertValid(), nex_TextException);
}

}  // namespace kamC_rules_test
