#include "kmaC_MaterialTable.h"

#include <vector>

#include "nex_TextException.h"

DD_DEFINE_ROOT_UNSCRIPTED(kmaC_MaterialTable, kmaC_Module)

kmaC_MaterialTable::kmaC_MaterialTable(int rows, int columns) : table(rows, columns) {}

kmaC_MaterialTable::kmaC_MaterialTable(cow_2DArray<double> const& array) : table(array) {}

kmaC_MaterialTable kmaC_MaterialTable::WithEmptyFirstRow() {
    kmaC_MaterialTable result;
    result.allowEmptyFirstRow = true;
    return result;
}

void kmaC_MaterialTable::Rules(mdl_RuleVisitor& v) const {
    cow_2DArrayRep<double> const& cells = table.ConstGet();
    if (cells.Columns() < 1) return;
    for (int row = 0; row < cells.Rows(); ++row) {
        int column = 0;
        while (column < cells.Columns() && cells.Cell(row, column) == 0.0) ++column;
        bool const blank = column == cells.Columns();
        if (!v.Rule(!blank || (row == 0 && allowEmptyFirstRow), 21)) return;
    }
}

bool kmaC_MaterialTable::operator==(kmaC_MaterialTable const& other) const {
    // Both arrays are held while the comparison runs.
    cow_2DArray<double> const a = table;
    cow_2DArray<double> const b = other.table;
    if (a.Rows() != b.Rows() || a.Columns() != b.Columns()) return false;
    for (int row = 0; row < a.Rows(); ++row)
        for (int column = 0; column < a.Columns(); ++column)
            if (!(a.ConstGet().Cell(row, column) == b.ConstGet().Cell(row, column))) return false;
    return true;
}

void kmaC_MaterialTable::Sort(int n) {
    if (n == 0) return;
    int const rows = Rows();
    int const columns = Columns();
    if (n > columns && rows > 1)
        nex_TextException(atr_raw("A table cannot be sorted by more columns than it has."))
            .Throw("generated/module/kma/com/impl/kmaC_MaterialTable", 1);
    cow_2DArray<double> sorted(rows, columns);
    cow_2DArrayRep<double>& work = sorted.Get();
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) work.Cell(row, column) = Cell(row, column);
    std::vector<double> buffer(static_cast<std::size_t>(columns), 0.0);
    for (int i = 1; i < rows; ++i) {
        for (int column = 0; column < columns; ++column)
            buffer[static_cast<std::size_t>(column)] = work.Cell(i, column);
        int j = i;
        int key = columns - 1;
        while (j > 0 && key > columns - n - 1) {
            double const before = work.Cell(j - 1, key);
            double const moving = buffer[static_cast<std::size_t>(key)];
            if (before > moving) {
                for (int column = 0; column < columns; ++column)
                    work.Cell(j, column) = work.Cell(j - 1, column);
                --j;
                key = columns - 1;
            } else if (before == moving) {
                --key;
            } else {
                break;
            }
        }
        for (int column = 0; column < columns; ++column)
            work.Cell(j, column) = buffer[static_cast<std::size_t>(column)];
    }
    table = sorted;
}
