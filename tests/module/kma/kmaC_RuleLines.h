#pragma once

#include <string>
#include <vector>

#include "kmaC_OptionUnderTest.h"

// What each class of option asks, from the table beside this, and the ways to make it fail.

namespace kmaC_test {

struct Line {
    std::string className;
    std::string settings;
    std::string steps;
};

std::vector<Line> const& RuleLines();

// One way to make one step of a line fail.
struct Break {
    int code;
    std::string member;    ///< the sub-option or list whose object is to fail; or empty
    std::string settings;  ///< of the object, or of that in the member
};

/// The ways for one step of a class's line.
std::vector<Break> BreaksOfStep(mdl_Description const& description, std::string const& step);
/// Those of each step.
std::vector<std::vector<Break>> BreaksOf(Line const& line);
void Apply(Option& option, Break const& way);
std::string Describe(Line const& line);

}  // namespace kmaC_test
