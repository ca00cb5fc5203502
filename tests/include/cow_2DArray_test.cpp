#include "cow_2DArray.h"

#include <gtest/gtest.h>

#include "cow_TestSupport.h"

TEST(Cow2DArray, StandsRowAfterRow) {
    cow_2DArray<double> table(2, 3);
    for (int r = 0; r < 2; ++r) {
        for (int c = 0; c < 3; ++c) table.Get().Cell(r, c) = 10 * r + c;
    }
    EXPECT_EQ(table.Rows(), 2);
    EXPECT_EQ(table.Columns(), 3);
    EXPECT_EQ(table.Data()[3 * 1 + 2], 12);
    EXPECT_EQ(table.Cell(0, 1), 1);
}

TEST(Cow2DArray, StartsWithZeros) {
    cow_2DArray<double> const table(3, 3);
    for (int i = 0; i < table.Size(); ++i) EXPECT_EQ(table.Data()[i], 0.0);
}

TEST(Cow2DArray, AWriteDetachesTheWholeTable) {
    cow_2DArray<double> first(2, 2);
    cow_2DArray<double> second(first);
    EXPECT_EQ(first.Data(), second.Data());
    second.Get().Cell(1, 1) = 5;
    EXPECT_NE(first.Data(), second.Data());
    EXPECT_EQ(first.Cell(1, 1), 0);
    EXPECT_EQ(second.Cell(1, 1), 5);
}

TEST(Cow2DArray, HasNoDataWithoutCells) {
    EXPECT_EQ(cow_2DArray<double>().Data(), nullptr);
    EXPECT_EQ(cow_2DArray<double>(0, 4).Columns(), 4);
    EXPECT_EQ(cow_2DArray<double>(-3, 4).Rows(), 0);
    EXPECT_EQ(cow_2DArray<double>(4, 0).Data(), nullptr);
}

TEST(Cow2DArray, RefusesMoreCellsThanItCanAddress) {
    EXPECT_THROW(cow_2DArray<double>(1 << 20, 1 << 20), std::bad_alloc);
}

TEST(Cow2DArray, LeaksNoCellWhenAnAllocationFails) {
    long const before = Tracked::alive;
    int const failures =
        FailEachAllocation([] { return 0; },
                           [](int&) {
                               cow_2DArray<Tracked> first(2, 2);
                               cow_2DArray<Tracked> const second(first);
                               first.Get().Cell(0, 0).Set(1);
                           },
                           [before](int&, bool) { EXPECT_EQ(Tracked::alive, before); });
    EXPECT_EQ(failures, 14);
}
