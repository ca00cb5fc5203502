#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "support/Tables.h"

// The rules of a class by example: an object that passes, and ways to break one rule each, in the
// order of the rules. Alone each raises its code; of any two the first in order wins.

namespace nga_test {

inline constexpr int passes = -1;

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

inline cow_List<double> ListOf(std::vector<double> const& values) {
    cow_List<double> list;
    for (double value : values) list.Append(value);
    return list;
}

}  // namespace nga_test
