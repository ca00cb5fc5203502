#include "mdl_TableRows.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

cow_2DArray<double> mdl_SortedRows(cow_2DArray<double> const& array, int n) {
    int const rows = array.Rows();
    int const columns = array.Columns();
    cow_2DArray<double> sorted(rows, columns);
    double* const cells = sorted.Get().Data();
    std::copy_n(array.Data(), array.Size(), cells);
    if (rows <= 1 || n <= 0) return sorted;
    if (n > columns) std::abort();
    auto const rowAt = [&](int row) { return cells + static_cast<std::ptrdiff_t>(columns) * row; };
    std::vector<double> moving(static_cast<std::size_t>(columns));
    for (int i = 1; i < rows; ++i) {
        std::copy_n(rowAt(i), columns, moving.data());
        int to = i;
        int key = columns - 1;
        while (to > 0 && key >= columns - n) {
            double const* const before = rowAt(to - 1);
            double const mine = moving[static_cast<std::size_t>(key)];
            if (before[key] > mine) {
                std::copy_n(before, columns, rowAt(to));
                --to;
                key = columns - 1;
            } else if (before[key] == mine) {
                --key;
            } else {
                break;  // smaller, or one of the two is a NaN
            }
        }
        std::copy_n(moving.data(), columns, rowAt(to));
    }
    return sorted;
}

bool mdl_EqualCells(cow_2DArray<double> const& a, cow_2DArray<double> const& b) {
    if (a.Rows() != b.Rows() || a.Columns() != b.Columns()) return false;
    return std::equal(a.Data(), a.Data() + a.Size(), b.Data());
}

bool mdl_IsBlankRow(cow_2DArray<double> const& array, int row) {
    int const columns = array.Columns();
    for (int column = 0; column < columns; ++column)
        if (array.Cell(row, column) != 0.0) return false;
    return columns > 0;
}
