#include "nga_ListEdits.h"

#include <algorithm>

namespace nga {

namespace {

using What = ListEdit::What;

/// Place by place, and at the end what one list has more.
void EditInTurn(std::vector<ListEdit>& edits, int at, int before, int after,
                std::function<bool(int, int)> const& same) {
    for (int i = at; i < std::max(before, after); ++i)
        edits.push_back({i >= after    ? What::Remove
                         : i >= before ? What::Insert
                         : same(i, i)  ? What::Keep
                                       : What::Change,
                         i, i});
}

}  // namespace

std::vector<ListEdit> EditsOf(int before, int after, std::function<bool(int, int)> const& same) {
    constexpr int longest = 1000;
    std::vector<ListEdit> edits;
    int start = 0;
    while (start < before && start < after && same(start, start)) {
        edits.push_back({What::Keep, start, start});
        ++start;
    }
    int kept = 0;
    while (before - kept > start && after - kept > start &&
           same(before - kept - 1, after - kept - 1))
        ++kept;
    int const rows = before - kept - start, columns = after - kept - start;
    if (rows > longest || columns > longest) {
        EditInTurn(edits, start, before, after, same);
        return edits;
    }
    // cost[i][j]: the fewest edits from the i-th of the first to the j-th of the second, to the
    // end.
    std::vector<std::vector<int>> cost(static_cast<std::size_t>(rows) + 1,
                                       std::vector<int>(static_cast<std::size_t>(columns) + 1));
    auto const at = [&](int i, int j) -> int& {
        return cost[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    };
    for (int i = rows; i >= 0; --i)
        for (int j = columns; j >= 0; --j) {
            if (i == rows || j == columns) {
                at(i, j) = rows - i + columns - j;
                continue;
            }
            int const changed = at(i + 1, j + 1) + (same(start + i, start + j) ? 0 : 1);
            at(i, j) = std::min({changed, at(i + 1, j) + 1, at(i, j + 1) + 1});
        }
    for (int i = 0, j = 0; i < rows || j < columns;) {
        bool const both = i < rows && j < columns;
        bool const isSame = both && same(start + i, start + j);
        ListEdit edit{What::Insert, start + i, start + j};
        if (both && at(i, j) == at(i + 1, j + 1) + (isSame ? 0 : 1))
            edit.what = isSame ? What::Keep : What::Change;
        else if (i < rows && at(i, j) == at(i + 1, j) + 1)
            edit.what = What::Remove;
        edits.push_back(edit);
        if (edit.what != What::Insert) ++i;
        if (edit.what != What::Remove) ++j;
    }
    for (int i = kept; i > 0; --i) edits.push_back({What::Keep, before - i, after - i});
    return edits;
}

}  // namespace nga
