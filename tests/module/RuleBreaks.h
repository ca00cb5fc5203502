#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

// The rules of a class by example: an object that passes, and ways to break one rule each, in the
// order of the rules. Alone each raises its code; of any two the first in order wins.

namespace nga_test {

inline constexpr int passes = -1;
inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// The code whose text AssertValid() raises, or passes.
template <class T>
int CodeRaisedBy(T const& object) {
    try {
        object.AssertValid();
    } catch (nex_TextException const& failure) {
        mdl_Module const& module = *T::Description().Module();
        for (int code = 0; code < 100; ++code)
            if (module.errorText(code) == failure.UserReport()) return code;
        ADD_FAILURE() << "raised by no code: " << failure.UserReport().Text();
    }
    return passes;
}

template <class T>
struct RuleBreak {
    int code;
    std::function<void(T&)> apply;
};

template <class T>
void ExpectRules(T const& valid, std::vector<RuleBreak<T>> const& breaks) {
    SCOPED_TRACE(T::Description().Name());
    EXPECT_EQ(CodeRaisedBy(valid), passes);
    for (std::size_t i = 0; i < breaks.size(); ++i) {
        T alone(valid);
        breaks[i].apply(alone);
        EXPECT_EQ(CodeRaisedBy(alone), breaks[i].code) << "break " << i;
        for (std::size_t j = i + 1; j < breaks.size(); ++j) {
            // The winner is applied last, so that the loser cannot undo it.
            T both(valid);
            breaks[j].apply(both);
            breaks[i].apply(both);
            EXPECT_EQ(CodeRaisedBy(both), breaks[i].code) << "break " << i << " before " << j;
        }
    }
}

/// An array of the rows.
inline cow_2DArray<double> Rows(std::vector<std::vector<double>> const& rows) {
    int const columns = rows.empty() ? 0 : static_cast<int>(rows.front().size());
    cow_2DArray<double> array(static_cast<int>(rows.size()), columns);
    for (int r = 0; r < array.Rows(); ++r)
        for (int c = 0; c < columns; ++c)
            array.Get().Cell(r, c) = rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
    return array;
}

inline cow_List<double> ListOf(std::vector<double> const& values) {
    cow_List<double> list;
    for (double value : values) list.Append(value);
    return list;
}

}  // namespace nga_test
