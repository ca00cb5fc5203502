#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "cow_2DArray.h"

namespace nga_test {

using Rows = std::vector<std::vector<double>>;

inline double const aNaN = std::numeric_limits<double>::quiet_NaN();

inline cow_2DArray<double> ArrayOf(Rows const& rows) {
    int const columns = rows.empty() ? 0 : static_cast<int>(rows[0].size());
    cow_2DArray<double> array(static_cast<int>(rows.size()), columns);
    for (int r = 0; r < array.Rows(); ++r)
        for (int c = 0; c < columns; ++c)
            array.Get().Cell(r, c) = rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
    return array;
}

/// Cell by cell; a NaN is where one is expected.
inline void ExpectRows(cow_2DArray<double> const& array, Rows const& rows) {
    ASSERT_EQ(array.Rows(), static_cast<int>(rows.size()));
    for (int r = 0; r < array.Rows(); ++r) {
        std::vector<double> const& row = rows[static_cast<std::size_t>(r)];
        ASSERT_EQ(array.Columns(), static_cast<int>(row.size()));
        for (int c = 0; c < array.Columns(); ++c) {
            double const expected = row[static_cast<std::size_t>(c)];
            if (expected != expected)
                EXPECT_NE(array.Cell(r, c), array.Cell(r, c)) << r << ' ' << c;
            else
                EXPECT_EQ(array.Cell(r, c), expected) << r << ' ' << c;
        }
    }
}

}  // namespace nga_test
