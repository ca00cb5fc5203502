#include "kmaC_MaterialTable.h"

#include <gtest/gtest.h>

#include <climits>

#include "nex_TextException.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"
#include "support/Tables.h"

namespace kmaC_MaterialTable_test {

using nga_test::aNaN;
using nga_test::ArrayOf;
using nga_test::ExpectRows;

TEST(MaterialTable, ItsConstructorsLeaveTheFirstRowChecked) {
    kmaC_MaterialTable const empty;
    EXPECT_EQ(empty.Rows(), 0);
    EXPECT_EQ(empty.Columns(), 0);
    EXPECT_FALSE(empty.allowEmptyFirstRow);
    kmaC_MaterialTable const sized(3, 2);
    EXPECT_EQ(sized.Rows(), 3);
    EXPECT_EQ(sized.Columns(), 2);
    EXPECT_EQ(sized.Cell(2, 1), 0.0);
    EXPECT_FALSE(sized.allowEmptyFirstRow);
    cow_2DArray<double> const array = ArrayOf({{1, 2}});
    kmaC_MaterialTable const given(array);
    EXPECT_TRUE(given.table.SharesWith(array));
    EXPECT_FALSE(given.allowEmptyFirstRow);
    EXPECT_NE(given.uid, sized.uid);
    EXPECT_TRUE(kmaC_MaterialTable::WithEmptyFirstRow().allowEmptyFirstRow);
}

TEST(MaterialTable, ACopySharesTheArrayUntilACellIsWritten) {
    kmaC_MaterialTable table(ArrayOf({{1, 2}, {3, 4}}));
    table.allowEmptyFirstRow = true;
    kmaC_MaterialTable copy(table);
    EXPECT_EQ(copy.uid, table.uid);
    EXPECT_TRUE(copy.allowEmptyFirstRow);
    EXPECT_TRUE(copy.table.SharesWith(table.table));
    copy.MutableCell(1, 0) = 30;
    EXPECT_EQ(table.Cell(1, 0), 3);
    EXPECT_EQ(copy.Cell(1, 0), 30);
}

TEST(MaterialTable, SortByNothingKeepsTheArrayAndByAnythingElseMakesANewOne) {
    for (int n : {1, 2, -1, INT_MIN}) {
        kmaC_MaterialTable table(ArrayOf({{2, 2}, {1, 2}}));
        kmaC_MaterialTable const copy(table);
        table.Sort(0);
        EXPECT_TRUE(table.table.SharesWith(copy.table));
        table.Sort(n);
        EXPECT_FALSE(table.table.SharesWith(copy.table)) << n;
        ExpectRows(copy.table, {{2, 2}, {1, 2}});
        if (n == 2)
            ExpectRows(table.table, {{1, 2}, {2, 2}});
        else
            ExpectRows(table.table, {{2, 2}, {1, 2}});
    }
    kmaC_MaterialTable row(ArrayOf({{7, 8}}));
    kmaC_MaterialTable const before(row);
    row.Sort(1);
    EXPECT_FALSE(row.table.SharesWith(before.table));
    EXPECT_TRUE(row == before);
}

TEST(MaterialTable, SortsByTheLastColumnFirst) {
    kmaC_MaterialTable table(ArrayOf({{1, 5, 2}, {9, 3, 2}, {0, 4, 1}}));
    table.allowEmptyFirstRow = true;
    cls_Uid const identity = table.uid;
    table.Sort(2);
    ExpectRows(table.table, {{0, 4, 1}, {9, 3, 2}, {1, 5, 2}});
    EXPECT_TRUE(table.allowEmptyFirstRow);
    EXPECT_EQ(table.uid, identity);
}

TEST(MaterialTable, ARowWithANaNKeyStaysAndIsNotPassed) {
    kmaC_MaterialTable table(ArrayOf({{1, 9}, {2, aNaN}, {3, 1}}));
    table.Sort(1);
    ExpectRows(table.table, {{1, 9}, {2, aNaN}, {3, 1}});
}

TEST(MaterialTable, MoreKeysThanColumnsEndTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    kmaC_MaterialTable table(ArrayOf({{1, 2}, {1, 2}}));
    EXPECT_DEATH(table.Sort(3), "");
}

TEST(MaterialTable, EqualsBySizeAndCellsAndNeverWithANaN) {
    kmaC_MaterialTable const a(ArrayOf({{1, 2}, {3, 4}}));
    kmaC_MaterialTable b(ArrayOf({{1, 2}, {3, 4}}));
    b.allowEmptyFirstRow = true;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.MutableCell(1, 1) = 5;
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a != kmaC_MaterialTable(2, 1));
    EXPECT_TRUE(kmaC_MaterialTable() == kmaC_MaterialTable());
    EXPECT_TRUE(kmaC_MaterialTable(ArrayOf({{0.0}})) == kmaC_MaterialTable(ArrayOf({{-0.0}})));
    kmaC_MaterialTable const withNaN(ArrayOf({{aNaN, 1}}));
    EXPECT_FALSE(withNaN == withNaN);
    EXPECT_TRUE(withNaN != withNaN);
}

/// Whether the row check passes; a failure must be that of blank rows.
bool Passes(kmaC_MaterialTable table, bool allowEmptyFirstRow) {
    table.allowEmptyFirstRow = allowEmptyFirstRow;
    try {
        table.AssertValid();
        return true;
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(),
                     "Tabular data for at least one option or suboption\n"
                     "has either blank or zero valued row(s).");
        return false;
    }
}

TEST(MaterialTable, OnlyTheFirstRowMayBeBlankAndOnlyIfAllowed) {
    kmaC_MaterialTable const first(ArrayOf({{0, 0}, {1, 0}}));
    kmaC_MaterialTable const second(ArrayOf({{1, 0}, {0, 0}}));
    EXPECT_FALSE(Passes(first, false));
    EXPECT_TRUE(Passes(first, true));
    EXPECT_FALSE(Passes(second, false));
    EXPECT_FALSE(Passes(second, true));
}

TEST(MaterialTable, ANegativeZeroIsZeroAndANaNIsNot) {
    EXPECT_FALSE(Passes(kmaC_MaterialTable(ArrayOf({{-0.0, 0.0}})), false));
    EXPECT_TRUE(Passes(kmaC_MaterialTable(ArrayOf({{0.0, aNaN}})), false));
    EXPECT_TRUE(Passes(kmaC_MaterialTable(ArrayOf({{0.0, 5e-324}})), false));
}

TEST(MaterialTable, NoRowsOrNoColumnsPass) {
    EXPECT_TRUE(Passes(kmaC_MaterialTable(), false));
    EXPECT_TRUE(Passes(kmaC_MaterialTable(0, 3), false));
    EXPECT_TRUE(Passes(kmaC_MaterialTable(3, 0), false));
}

TEST(MaterialTable, WritesTheArrayThenTheFlag) {
    kmaC_MaterialTable table(ArrayOf({{1, 2}}));
    table.allowEmptyFirstRow = true;
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(table),
              "start 0x2380058\n"
              "field 0:table {\n"
              "  start 0x230001\n"
              "  check 82\n"
              "  array 1x2 1 2\n"
              "}\n"
              "bool 1:allowEmptyFirstRow=true\n");
    EXPECT_EQ(log.Write(table), "start 0x2380058 again\n");
}

TEST(MaterialTable, ReadsWhatWasWrittenAndFalseForAMissingFlag) {
    nga_test::StoredObject stored;
    stored.Field("table").array = ArrayOf({{5, 6}});
    {
        cls_ReadVisitor const visitor(stored.Memento());
        kmaC_MaterialTable const table(visitor);
        EXPECT_EQ(table.Cell(0, 1), 6);
        EXPECT_FALSE(table.allowEmptyFirstRow);
        EXPECT_EQ(table.uid, stored.uid);
    }
    stored.bools["allowEmptyFirstRow"] = true;
    cls_ReadVisitor const visitor(stored.Memento());
    EXPECT_TRUE(kmaC_MaterialTable(visitor).allowEmptyFirstRow);
}

}  // namespace kmaC_MaterialTable_test
