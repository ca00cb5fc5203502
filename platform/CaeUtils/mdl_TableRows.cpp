#include "mdl_TableRows.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <vector>

namespace {

bool HasNaNInKeys(cow_2DArray<double> const& array, int n) {
    for (int row = 0; row < array.Rows(); ++row)
        for (int column = array.Columns() - n; column < array.Columns(); ++column)
            if (std::isnan(array.Cell(row, column))) return true;
    return false;
}

// What the insertion gives where all cells can be compared, without its square of the rows.
cow_2DArray<double> StablySorted(cow_2DArray<double> const& array, int n) {
    std::size_t const columns = static_cast<std::size_t>(array.Columns());
    std::vector<double const*> order;
    for (int row = 0; row < array.Rows(); ++row)
        order.push_back(array.Data() + columns * static_cast<std::size_t>(row));
    std::sort(order.begin(), order.end(), [&](double const* a, double const* b) {
        for (std::size_t key = columns; key-- > columns - static_cast<std::size_t>(n);)
            if (a[key] != b[key]) return a[key] < b[key];
        // Rows that tie keep their order, which is that of their places.
        return std::less<double const*>()(a, b);
    });
    cow_2DArray<double> sorted(array.Rows(), array.Columns());
    double* to = sorted.Get().Data();
    for (double const* row : order) to = std::copy_n(row, columns, to);
    return sorted;
}

}  // namespace

cow_2DArray<double> mdl_SortedRows(cow_2DArray<double> const& array, int n) {
    int const rows = array.Rows();
    int const columns = array.Columns();
    if (n > 0 && n <= columns && !HasNaNInKeys(array, n)) return StablySorted(array, n);
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
