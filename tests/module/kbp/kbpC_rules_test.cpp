#include "module/RuleBreaks.h"

namespace kbpC_rules_test {

using nga_test::aNaN;
using nga_test::ArrayOf;
using nga_test::CodeRaisedBy;
using nga_test::ExpectRules;
using nga_test::passes;

/// A break that sets one field.
template <class T>
nga_test::RuleBreak<T> Set(int code, double T::*field, double value) {
    return {code, [=](T& profile) { profile.*field = value; }};
}

TEST(ProfileRules, OfRectangles) {
    using P = kbpC_RectangularProfile;
    P valid;
    valid.a = valid.b = 1.0;
    ExpectRules<P>(valid, {Set(23, &P::a, 0.0), Set(24, &P::b, aNaN)});
}

TEST(ProfileRules, OfTrapezoids) {
    using P = kbpC_TrapezoidalProfile;
    P valid;
    valid.a = valid.b = valid.c = 1.0;
    valid.d = aNaN;
    ExpectRules<P>(valid, {Set(23, &P::a, -1.0), Set(24, &P::b, 0.0), Set(25, &P::c, aNaN)});
}

TEST(ProfileRules, OfCircles) {
    using P = kbpC_CircularProfile;
    P valid;
    valid.r = 1.0;
    ExpectRules<P>(valid, {Set(9, &P::r, 0.0)});
    valid.r = aNaN;
    EXPECT_EQ(CodeRaisedBy(valid), 9);
}

TEST(ProfileRules, OfPipes) {
    using P = kbpC_PipeProfile;
    P valid;
    valid.r = 1.0;
    valid.t = 0.5;
    ExpectRules<P>(valid, {Set(9, &P::r, -1.0), Set(10, &P::t, 0.0)});
    valid.t = 1.0;
    EXPECT_EQ(CodeRaisedBy(valid), 17);
    valid.r = 0.0;
    EXPECT_EQ(CodeRaisedBy(valid), 9);
}

TEST(ProfileRules, OfHexagons) {
    using P = kbpC_HexagonalProfile;
    P valid;
    valid.r = 1.0;
    valid.t = 0.8659;
    ExpectRules<P>(valid, {Set(9, &P::r, 0.0), Set(27, &P::t, 0.0)});
    valid.t = 0.866;
    EXPECT_EQ(CodeRaisedBy(valid), 22);
    // Less than the root of three over two, and fails all the same.
    valid.t = 0.86601;
    EXPECT_EQ(CodeRaisedBy(valid), 22);
    valid.r = -1.0;
    EXPECT_EQ(CodeRaisedBy(valid), 9);
}

TEST(ProfileRules, OfAngles) {
    using P = kbpC_LbeamProfile;
    P valid;
    valid.a = valid.b = 2.0;
    valid.t1 = valid.t2 = 1.0;
    ExpectRules<P>(valid, {Set(23, &P::a, 0.0), Set(24, &P::b, 0.0), Set(28, &P::t1, 0.0),
                           Set(29, &P::t2, 0.0)});
    // The first thickness is held against b and the second against a.
    valid.t1 = 2.0;
    valid.a = 9.0;
    EXPECT_EQ(CodeRaisedBy(valid), 32);
    valid.t2 = 9.0;
    EXPECT_EQ(CodeRaisedBy(valid), 32);
    valid.t1 = 1.0;
    EXPECT_EQ(CodeRaisedBy(valid), 34);
    valid.t2 = 0.0;
    EXPECT_EQ(CodeRaisedBy(valid), 29);
    P leg;
    leg.a = 9.0;
    leg.b = 2.0;
    leg.t1 = 1.0;
    leg.t2 = 5.0;
    EXPECT_EQ(CodeRaisedBy(leg), passes);
    std::swap(leg.a, leg.b);
    EXPECT_EQ(CodeRaisedBy(leg), 34);
    std::swap(leg.t1, leg.t2);
    EXPECT_EQ(CodeRaisedBy(leg), passes);
    std::swap(leg.a, leg.b);
    EXPECT_EQ(CodeRaisedBy(leg), 32);
}

TEST(ProfileRules, OfTeesHaveTwoCodesCrossed) {
    using P = kbpC_TbeamProfile;
    P valid;
    valid.b = valid.h = 2.0;
    valid.tf = valid.tw = 1.0;
    valid.l = aNaN;
    ExpectRules<P>(valid, {Set(24, &P::b, 0.0), Set(26, &P::h, 0.0), Set(31, &P::tf, 0.0),
                           Set(30, &P::tw, 0.0)});
    valid.tf = 2.0;
    EXPECT_EQ(CodeRaisedBy(valid), 36);
    valid.tw = 2.0;
    EXPECT_EQ(CodeRaisedBy(valid), 36);
    valid.tf = 1.0;
    EXPECT_EQ(CodeRaisedBy(valid), 37);
    // The flange's thickness is held against the height and the web's against the width.
    P tee;
    tee.b = 9.0;
    tee.h = 2.0;
    tee.tw = 5.0;
    tee.tf = 1.0;
    EXPECT_EQ(CodeRaisedBy(tee), passes);
    std::swap(tee.tf, tee.tw);
    EXPECT_EQ(CodeRaisedBy(tee), 36);
    std::swap(tee.b, tee.h);
    EXPECT_EQ(CodeRaisedBy(tee), passes);
    std::swap(tee.tf, tee.tw);
    EXPECT_EQ(CodeRaisedBy(tee), 37);
}

TEST(ProfileRules, OfBoxes) {
    using P = kbpC_BoxProfile;
    P valid;
    valid.a = valid.b = 4.0;
    valid.t1 = valid.t2 = valid.t3 = valid.t4 = 1.0;
    ExpectRules<P>(valid, {Set(7, &P::b, 0.0), Set(8, &P::a, 0.0), Set(11, &P::t1, 0.0),
                           Set(11, &P::t2, 0.0), Set(11, &P::t3, aNaN), Set(11, &P::t4, -1.0)});
    P box(valid);
    box.t1 = 3.0;
    EXPECT_EQ(CodeRaisedBy(box), 13);
    box.t4 = 3.0;
    EXPECT_EQ(CodeRaisedBy(box), 13);
    box.t1 = 2.9;
    EXPECT_EQ(CodeRaisedBy(box), 14);
    box.t4 = 2.9;
    EXPECT_EQ(CodeRaisedBy(box), passes);
    box.t1 = 1.0;
    box.t3 = 3.0;
    EXPECT_EQ(CodeRaisedBy(box), 13);
    // Walls 1 and 3 take from the width, 2 and 4 from the height.
    P flat(valid);
    flat.a = 9.0;
    flat.b = 3.0;
    flat.t1 = flat.t3 = 4.0;
    EXPECT_EQ(CodeRaisedBy(flat), passes);
    std::swap(flat.a, flat.b);
    EXPECT_EQ(CodeRaisedBy(flat), 13);
    flat.t1 = flat.t3 = 1.0;
    flat.t2 = flat.t4 = 4.0;
    EXPECT_EQ(CodeRaisedBy(flat), passes);
    std::swap(flat.a, flat.b);
    EXPECT_EQ(CodeRaisedBy(flat), 14);
}

TEST(ProfileRules, OfBoxesOfOneThickness) {
    using P = kbpC_BoxProfile;
    P valid;
    valid.uniformThickness = true;
    valid.a = valid.b = 4.0;
    valid.t1 = 1.0;
    valid.t2 = aNaN;
    valid.t3 = -1.0;
    valid.t4 = 100.0;
    ExpectRules<P>(valid, {Set(7, &P::b, 0.0), Set(8, &P::a, 0.0), Set(10, &P::t1, 0.0)});
    P box(valid);
    box.a = 2.0;
    EXPECT_EQ(CodeRaisedBy(box), 15);
    box.b = 2.0;
    EXPECT_EQ(CodeRaisedBy(box), 15);
    box.a = 4.0;
    EXPECT_EQ(CodeRaisedBy(box), 16);
    box.b = 2.1;
    EXPECT_EQ(CodeRaisedBy(box), passes);
}

TEST(ProfileRules, OfIsWithTwoFlanges) {
    using P = kbpC_IbeamProfile;
    P valid;
    valid.h = valid.t3 = valid.b1 = valid.b2 = valid.t1 = valid.t2 = 1.0;
    valid.l = aNaN;
    ExpectRules<P>(valid, {Set(7, &P::h, 0.0), Set(18, &P::t3, aNaN), Set(11, &P::t1, 0.0),
                           Set(11, &P::t2, 0.0)});
}

TEST(ProfileRules, OfIsWithOneFlangeOrNone) {
    using P = kbpC_IbeamProfile;
    P lower;
    lower.h = lower.t3 = lower.b1 = lower.t1 = 1.0;
    ExpectRules<P>(lower, {Set(7, &P::h, 0.0), Set(18, &P::t3, 0.0), Set(20, &P::t1, 0.0)});
    lower.b2 = aNaN;
    EXPECT_EQ(CodeRaisedBy(lower), passes);
    lower.t1 = 0.0;
    EXPECT_EQ(CodeRaisedBy(lower), 20);
    P upper;
    upper.h = upper.t3 = upper.b2 = upper.t2 = 1.0;
    ExpectRules<P>(upper, {Set(7, &P::h, 0.0), Set(18, &P::t3, 0.0), Set(19, &P::b2, 0.0),
                           Set(21, &P::t2, 0.0)});
    upper.b1 = -1.0;
    EXPECT_EQ(CodeRaisedBy(upper), passes);
    upper.b1 = aNaN;
    EXPECT_EQ(CodeRaisedBy(upper), passes);
    P none;
    none.h = none.t3 = 1.0;
    EXPECT_EQ(CodeRaisedBy(none), 19);
    none.b1 = none.b2 = -1.0;
    EXPECT_EQ(CodeRaisedBy(none), 19);
}

TEST(ProfileRules, OfGeneralizedProfiles) {
    using P = kbpC_GeneralizedProfile;
    P valid;
    valid.area = 1.0;
    valid.i11 = valid.i22 = 2.0;
    valid.i12 = 2.0;
    valid.gammaO = valid.gammaW = aNaN;
    ExpectRules<P>(valid, {Set(0, &P::area, 0.0), Set(1, &P::i11, 0.0), Set(6, &P::i12, -2.0),
                           Set(5, &P::j, -1.0)});
    struct Products {
        double i22;
        double i12;
        int code;
    };
    for (auto const& [i22, i12, code] : std::vector<Products>{{2.0, 2.0, passes},
                                                              {2.0, -1.9, passes},
                                                              {2.0, -2.0, 6},
                                                              {2.0, 2.1, 6},
                                                              {2.0, aNaN, 6},
                                                              {4.0, 3.0, passes},
                                                              {4.0, -3.0, 6},
                                                              {0.0, 0.0, passes},
                                                              {-0.0, -0.0, passes},
                                                              {0.0, 0.1, 2},
                                                              {0.0, aNaN, 2},
                                                              {-1.0, 0.0, passes},
                                                              {-1.0, 1e9, passes},
                                                              {aNaN, aNaN, passes}}) {
        P profile(valid);
        profile.i22 = i22;
        profile.i12 = i12;
        EXPECT_EQ(CodeRaisedBy(profile), code) << i22 << ' ' << i12;
        profile.j = aNaN;
        EXPECT_EQ(CodeRaisedBy(profile), code == passes ? 5 : code) << i22 << ' ' << i12;
    }
}

int VerdictOfTable(std::vector<std::vector<double>> const& rows) {
    kbpC_ArbitraryProfile profile;
    profile.table = ArrayOf(rows);
    return CodeRaisedBy(profile);
}

TEST(ProfileRules, OfArbitraryProfiles) {
    EXPECT_EQ(VerdictOfTable({}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0, -1}}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0, 0}, {1, 0, 0}, {2, 0, 1}}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0, 0}, {1, 0, 1}, {2, 0, 0}, {3, 0, 0}}), 12);
    EXPECT_EQ(VerdictOfTable({{0, 0, -1}, {1, 0, 1}}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0, aNaN}, {1, 0, 1}}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0, 1}, {1, 0, -1}}), 11);
    EXPECT_EQ(VerdictOfTable({{0, 0, 1}, {1, 0, aNaN}}), 11);
    EXPECT_EQ(VerdictOfTable({{0, 0, 1}, {1, 0, 0}, {2, 0, 0}}), 12);
    EXPECT_EQ(VerdictOfTable({{0, 0, 1}, {1, 0, 0}, {2, 0, 1}, {3, 0, 0}}), passes);
    // A later negative thickness comes before two zeros.
    EXPECT_EQ(VerdictOfTable({{0, 0, 1}, {1, 0, 0}, {2, 0, 0}, {3, 0, -1}}), 11);
    EXPECT_EQ(VerdictOfTable({{0, 0, 1, 9}, {1, 0, 1, 9}}), passes);
}

TEST(ProfileRules, OfArbitraryProfilesWithoutAThirdColumn) {
    EXPECT_EQ(VerdictOfTable({{0, 0}}), passes);
    EXPECT_EQ(VerdictOfTable({{0, 0}, {1, 0}}), 11);
    kbpC_ArbitraryProfile profile;
    profile.table = cow_2DArray<double>(3, 0);
    EXPECT_EQ(CodeRaisedBy(profile), 11);
    profile.table = cow_2DArray<double>(1, 0);
    EXPECT_EQ(CodeRaisedBy(profile), passes);
}

TEST(ProfileRules, ADefaultShapeFailsAtItsFirstDimension) {
    EXPECT_EQ(CodeRaisedBy(kbpC_RectangularProfile()), 23);
    EXPECT_EQ(CodeRaisedBy(kbpC_TrapezoidalProfile()), 23);
    EXPECT_EQ(CodeRaisedBy(kbpC_LbeamProfile()), 23);
    EXPECT_EQ(CodeRaisedBy(kbpC_CircularProfile()), 9);
    EXPECT_EQ(CodeRaisedBy(kbpC_PipeProfile()), 9);
    EXPECT_EQ(CodeRaisedBy(kbpC_HexagonalProfile()), 9);
    EXPECT_EQ(CodeRaisedBy(kbpC_BoxProfile()), 7);
    EXPECT_EQ(CodeRaisedBy(kbpC_IbeamProfile()), 7);
    EXPECT_EQ(CodeRaisedBy(kbpC_GeneralizedProfile()), 0);
    EXPECT_EQ(CodeRaisedBy(kbpC_TbeamProfile()), 24);
    EXPECT_EQ(CodeRaisedBy(kbpC_ArbitraryProfile()), passes);
}

TEST(ProfileRules, AreRaisedAtTheirPlace) {
    try {
        kbpC_CircularProfile().AssertValid();
        ADD_FAILURE() << "nothing thrown";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), "generated/module/kbp/com/impl/kbpC_assert");
        EXPECT_EQ(failure.Line(), 116);
    }
}

}  // namespace kbpC_rules_test
