#pragma once

#include <string>
#include <vector>

#include "mdl_Description.h"

namespace nga {

/// One rule of a class, as its failure tells it.
struct ListedRule {
    std::string module;  ///< as a Finding has it
    int code;
    std::string message;
};

/// The rules of a class, in its order, for people who want to know them beforehand: those that its
/// rule function comes to on an object as its constructor makes it, on one whose tables, lists and
/// options are filled, and on ones with another number or with one or two other literals or flags,
/// so that what is asked of some kinds only is found too. Rules of the objects in it are theirs.
std::vector<ListedRule> RulesOf(mdl_Description const& description);

}  // namespace nga
