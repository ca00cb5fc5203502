#include "nga_Diff.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "nga_Error.h"
#include "nga_Json.h"

namespace {

using nga::AreNear;
using nga::Document;

std::vector<std::string> Differences(std::string const& before, std::string const& after,
                                     nga::Tolerance const& tolerance = {}) {
    Document one = Document::New("one"), other = Document::New("other");
    nga::ImportJson(one, before);
    nga::ImportJson(other, after);
    std::vector<std::string> lines;
    nga::Diff(nga::Snapshot(one.Model()), nga::Snapshot(other.Model()), "", tolerance,
              [&](nga::Difference const& found) {
                  lines.push_back(found.path + ": " + nga::DiffText(found.before) + " -> " +
                                  nga::DiffText(found.after));
              });
    return lines;
}

using Lines = std::vector<std::string>;

TEST(Diff, NumbersAreNearWithinTheLargerBound) {
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(AreNear(100.0, 101.0, {0.01, 0.0}));
    EXPECT_FALSE(AreNear(100.0, 101.1, {0.01, 0.0}));
    EXPECT_FALSE(AreNear(0.0, 1e-300, {0.5, 0.0}));
    EXPECT_TRUE(AreNear(0.0, 1e-300, {0.0, 1e-299}));
    EXPECT_TRUE(AreNear(0.0, -0.0, {}));
    EXPECT_TRUE(AreNear(std::nan(""), std::nan(""), {}));
    EXPECT_FALSE(AreNear(std::nan(""), 0.0, {1.0, infinity}));
    EXPECT_TRUE(AreNear(infinity, infinity, {}));
    EXPECT_FALSE(AreNear(infinity, 1.0, {1.0, 1e300}));
    EXPECT_FALSE(AreNear(infinity, -infinity, {1.0, 1e300}));
}

TEST(Diff, AToleranceBelowZeroOrWithoutAValueIsRefused) {
    for (double const wrong : {-1.0, -std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_THROW(Differences("{}", "{}", {wrong, 0.0}), nga::Error);
        EXPECT_THROW(Differences("{}", "{}", {0.0, wrong}), nga::Error);
    }
}

TEST(Diff, WhatIsOnOneSideOnlyIsNamed) {
    EXPECT_EQ(Differences(R"({"materials": {"a": {}, "b": {}}})",
                          R"({"materials": {"b": {"elastic": {}}, "c": {}}})"),
              (Lines{".materials['a']: kmaC_Material -> nothing",
                     ".materials['b'].options['elastic']: nothing -> kmaC_Elastic",
                     ".materials['c']: nothing -> kmaC_Material"}));
}

TEST(Diff, ValuesAreToldCellByCell) {
    EXPECT_EQ(
        Differences(
            R"({"materials": {"a": {"elastic": {"type": "LAMINA", "table": [[1, 2], [3, 4]]}}},
                "loadCases": {"l": {"loads": {"wind": 1, "snow": 2}}}})",
            R"({"materials": {"a": {"elastic": {"table": [[1, 2], [3, 5]]}}},
                "loadCases": {"l": {"loads": {"wind": 1.5, "ice": 2}}}})"),
        (Lines{".materials['a'].options['elastic'].type: LAMINA -> ISOTROPIC",
               ".materials['a'].options['elastic'].table[1][1]: 4.0 -> 5.0",
               ".loadCases['l'].loads['snow']: 2.0 -> nothing",
               ".loadCases['l'].loads['wind']: 1.0 -> 1.5",
               ".loadCases['l'].loads['ice']: nothing -> 2.0"}));
}

TEST(Diff, TablesOfOtherShapeAreToldWhole) {
    EXPECT_EQ(Differences(R"({"materials": {"a": {"density": {"table": [[1]]}}}})",
                          R"({"materials": {"a": {"density": {"table": [[1, 2]]}}}})"),
              (Lines{".materials['a'].options['density'].table: [[1.0]] -> [[1.0, 2.0]]"}));
}

TEST(Diff, ATableSFlagIsToldBesideItsRows) {
    EXPECT_EQ(
        Differences(
            R"({"materials": {"a": {"elastic": {"table": [[1]]}}}})",
            R"({"materials": {"a": {"elastic": {"table": {"allowEmptyFirstRow": true, "data": [[1]]}}}}})"),
        (Lines{".materials['a'].options['elastic'].table.allowEmptyFirstRow: false -> true"}));
}

TEST(Diff, TolerancesHoldForEveryRealNumber) {
    EXPECT_TRUE(Differences(R"({"loadCases": {"l": {"loads": {"wind": 1.0}}}})",
                            R"({"loadCases": {"l": {"loads": {"wind": 1.0001}}}})", {1e-3, 0})
                    .empty());
    // A number that is not set is near to no number.
    EXPECT_EQ(Differences(R"({"materials": {"a": {"hyperelastic": {"beta": 1.0}}}})",
                          R"({"materials": {"a": {"hyperelastic": {}}}})", {1.0, 1e308}),
              (Lines{".materials['a'].options['hyperelastic'].beta: 1.0 -> not set"}));
}

TEST(Diff, ASnapshotStaysAsItWas) {
    Document document = Document::New("one");
    nga::ImportJson(document, R"({"materials": {"a": {}}})");
    nga::Snapshot const before(document.Model());
    document.Materials().Get("a").description = "later";
    std::vector<std::string> paths;
    nga::Diff(before, nga::Snapshot(document.Model()), "root", {},
              [&](nga::Difference const& found) { paths.push_back(found.path); });
    EXPECT_EQ(paths, (Lines{"root.materials['a'].description"}));
}

}  // namespace
