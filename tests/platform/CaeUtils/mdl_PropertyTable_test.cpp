#include "mdl_PropertyTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>

#include "mdl_TableRows.h"
#include "nex_TextException.h"
#include "support/Owned.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"
#include "support/Tables.h"

namespace mdl_PropertyTable_test {

using nga_test::aNaN;
using nga_test::ArrayOf;
using nga_test::ExpectRows;
using nga_test::Rows;

Rows Sorted(Rows const& rows, int n) {
    cow_2DArray<double> const sorted = mdl_SortedRows(ArrayOf(rows), n);
    Rows result;
    for (int r = 0; r < sorted.Rows(); ++r) {
        result.emplace_back();
        for (int c = 0; c < sorted.Columns(); ++c) result.back().push_back(sorted.Cell(r, c));
    }
    return result;
}

TEST(SortedRows, TheLastColumnDecidesFirst) {
    EXPECT_EQ(Sorted({{1, 5, 2}, {9, 3, 2}, {0, 4, 1}}, 2),
              (Rows{{0, 4, 1}, {9, 3, 2}, {1, 5, 2}}));
    EXPECT_EQ(Sorted({{1, 5, 2}, {9, 3, 2}, {0, 4, 1}}, 1),
              (Rows{{0, 4, 1}, {1, 5, 2}, {9, 3, 2}}));
}

TEST(SortedRows, RowsThatTieKeepTheirOrder) {
    EXPECT_EQ(Sorted({{3, 1}, {1, 1}, {2, 0}, {2, 1}, {9, 0}}, 1),
              (Rows{{2, 0}, {9, 0}, {3, 1}, {1, 1}, {2, 1}}));
    // Zeros of either sign tie.
    Rows const zeros = Sorted({{1, 0.0}, {2, -0.0}, {3, 0.0}}, 1);
    EXPECT_EQ(zeros[0][0], 1);
    EXPECT_EQ(zeros[1][0], 2);
    EXPECT_EQ(zeros[2][0], 3);
}

TEST(SortedRows, AllColumnsMayBeKeys) {
    EXPECT_EQ(Sorted({{2, 1}, {1, 1}, {3, 0}}, 2), (Rows{{3, 0}, {1, 1}, {2, 1}}));
}

TEST(SortedRows, AreThoseOfAStableSortWhereNothingIsANaN) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::size_t const count = random() % 12;
        std::size_t const columns = 1 + random() % 4;
        Rows rows(count, std::vector<double>(columns));
        for (auto& row : rows)
            for (double& cell : row) cell = static_cast<double>(random() % 3) - 1.0;
        int const n = static_cast<int>(random() % (columns + 1));
        Rows expected = rows;
        std::stable_sort(expected.begin(), expected.end(), [&](auto const& a, auto const& b) {
            for (std::size_t key = columns; key > columns - static_cast<std::size_t>(n); --key)
                if (a[key - 1] != b[key - 1]) return a[key - 1] < b[key - 1];
            return false;
        });
        ASSERT_EQ(Sorted(rows, n), expected) << round;
    }
}

TEST(SortedRows, ManyRowsDoNotTakeTheirSquare) {
    int const rows = 200000;
    cow_2DArray<double> array(rows, 2);
    for (int row = 0; row < rows; ++row) {
        array.Get().Cell(row, 0) = row;
        array.Get().Cell(row, 1) = rows - row;
    }
    // By insertion this would take minutes, and the runner would end it.
    cow_2DArray<double> const sorted = mdl_SortedRows(array, 1);
    for (int row = 0; row < rows; ++row) ASSERT_EQ(sorted.Cell(row, 1), row + 1);
}

TEST(SortedRows, ANaNStopsTheWalkOfARow) {
    // It stays where it is, and a later row is not compared past it.
    ExpectRows(mdl_SortedRows(ArrayOf({{1, 5}, {2, aNaN}, {3, 1}, {4, 0}}), 1),
               {{1, 5}, {2, aNaN}, {4, 0}, {3, 1}});
    // A tie in the last column goes on to the left, where a NaN stops it as well.
    ExpectRows(mdl_SortedRows(ArrayOf({{aNaN, 1}, {0, 1}, {-1, 0}}), 2),
               {{-1, 0}, {aNaN, 1}, {0, 1}});
}

TEST(SortedRows, NoKeyOrANegativeNumberMovesNothing) {
    Rows const rows{{3, 3}, {1, 1}};
    EXPECT_EQ(Sorted(rows, 0), rows);
    EXPECT_EQ(Sorted(rows, -1), rows);
    EXPECT_EQ(Sorted(rows, INT_MIN), rows);
}

TEST(SortedRows, LeaveTheArrayThatTheyAreMadeFrom) {
    cow_2DArray<double> const array = ArrayOf({{2}, {1}});
    cow_2DArray<double> const sorted = mdl_SortedRows(array, 1);
    ExpectRows(array, {{2}, {1}});
    ExpectRows(sorted, {{1}, {2}});
    EXPECT_EQ(array.Count(), 1);
}

TEST(SortedRows, MoreKeysThanColumnsEndTheProcessIfThereIsAnythingToCompare) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(mdl_SortedRows(ArrayOf({{1, 2}, {1, 2}}), 3), "");
    EXPECT_DEATH(mdl_SortedRows(ArrayOf({{1, 2}, {3, 4}}), INT_MAX), "");
    EXPECT_DEATH(mdl_SortedRows(cow_2DArray<double>(2, 0), 1), "");
    EXPECT_EQ(Sorted({{1, 2}}, 3), (Rows{{1, 2}}));
    EXPECT_EQ(Sorted({}, 3), Rows{});
}

TEST(EqualCells, NeedTheSameSizeAndCells) {
    EXPECT_TRUE(mdl_EqualCells(ArrayOf({{1, 2}}), ArrayOf({{1, 2}})));
    EXPECT_TRUE(mdl_EqualCells(ArrayOf({{0.0}}), ArrayOf({{-0.0}})));
    EXPECT_FALSE(mdl_EqualCells(ArrayOf({{1, 2}}), ArrayOf({{1}, {2}})));
    EXPECT_FALSE(mdl_EqualCells(ArrayOf({{1, 2}}), ArrayOf({{1, 3}})));
    EXPECT_TRUE(mdl_EqualCells(cow_2DArray<double>(0, 0), cow_2DArray<double>(0, 0)));
    EXPECT_FALSE(mdl_EqualCells(cow_2DArray<double>(0, 2), cow_2DArray<double>(0, 3)));
    cow_2DArray<double> const withNaN = ArrayOf({{1, aNaN}});
    EXPECT_FALSE(mdl_EqualCells(withNaN, withNaN));
}

void ExpectBlankRow(mdl_PropertyTable const& table) {
    try {
        table.AssertValid();
        ADD_FAILURE() << "passed";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(),
                     "Tabular data has either blank or zero valued row(s).");
    }
}

TEST(PropertyTable, RefusesARowThatIsAllZero) {
    EXPECT_NO_THROW(mdl_PropertyTable().AssertValid());
    EXPECT_NO_THROW(mdl_PropertyTable(ArrayOf({{0, 1}, {aNaN, 0}})).AssertValid());
    EXPECT_NO_THROW(mdl_PropertyTable(2, 0).AssertValid());
    EXPECT_NO_THROW(mdl_PropertyTable(0, 2).AssertValid());
    ExpectBlankRow(mdl_PropertyTable(1, 1));
    ExpectBlankRow(mdl_PropertyTable(ArrayOf({{1, 1}, {-0.0, 0.0}})));
    ExpectBlankRow(mdl_PropertyTable(ArrayOf({{0, 0}, {1, 1}})));
}

TEST(PropertyTable, SortsItsRowsAndLeavesTheArrayAloneForZero) {
    mdl_PropertyTable table(ArrayOf({{1, 2}, {2, 1}}));
    mdl_PropertyTable const copy(table);
    table.Sort(0);
    EXPECT_TRUE(table.table.SharesWith(copy.table));
    cls_Uid const identity = table.table.uid;
    table.Sort(1);
    ExpectRows(table.table, {{2, 1}, {1, 2}});
    ExpectRows(copy.table, {{1, 2}, {2, 1}});
    EXPECT_EQ(table.table.uid, identity);
}

TEST(PropertyTable, EqualsByItsCellsAlone) {
    mdl_PropertyTable const a(ArrayOf({{1, 2}}));
    mdl_PropertyTable const b(ArrayOf({{1, 2}}));
    EXPECT_NE(a.uid, b.uid);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_TRUE(a != mdl_PropertyTable());
    mdl_PropertyTable const withNaN(ArrayOf({{aNaN}}));
    EXPECT_TRUE(withNaN != withNaN);
}

TEST(PropertyTable, ACopySharesUntilOneIsWritten) {
    mdl_PropertyTable const table(ArrayOf({{1, 2}}));
    nga_test::Owned<mdl_PropertyTable> const copy(table.Copy());
    EXPECT_EQ(copy->uid, table.uid);
    EXPECT_TRUE(copy->table.SharesWith(table.table));
    copy->MutableCell(0, 1) = 9;
    EXPECT_EQ(table.Cell(0, 1), 2);
    EXPECT_EQ(copy->Cell(0, 1), 9);
    EXPECT_EQ(copy->Rows(), 1);
    EXPECT_EQ(copy->Columns(), 2);
}

TEST(PropertyTable, IsWrittenAndRead) {
    mdl_PropertyTable const table(ArrayOf({{1, 2}}));
    EXPECT_EQ(table.DynTypeId(), mdl_PropertyTableTypeId);
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(table),
              "start 0xA000E\n"
              "field 0:table {\n"
              "  start 0x230001\n"
              "  check 82\n"
              "  array 1x2 1 2\n"
              "}\n");
    nga_test::StoredObject stored;
    stored.Field("table").array = ArrayOf({{3}});
    cls_ReadVisitor const visitor(stored.Memento());
    mdl_PropertyTable const read(visitor);
    EXPECT_EQ(read.Cell(0, 0), 3);
    EXPECT_EQ(read.uid, stored.uid);
}

}  // namespace mdl_PropertyTable_test
