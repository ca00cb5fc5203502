#pragma once

#include <functional>
#include <vector>

namespace nga {

/// One step of turning a list into another, at the places that its element has in both.
struct ListEdit {
    enum class What { Keep, Change, Remove, Insert };
    What what;
    int before;
    int after;
};

/// The fewest changes, removals and insertions that turn a list into another, in the order of the
/// places, with the elements between them that stay. \p same compares an element of the first with
/// one of the second. Lists that differ over a long stretch have each place changed there, since
/// finding out better costs the square of its length.
std::vector<ListEdit> EditsOf(int before, int after, std::function<bool(int, int)> const& same);

}  // namespace nga
