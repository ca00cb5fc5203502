#include "kmaC_MaterialTable.h"

#include "mdl_TableRows.h"

DD_DEFINE_ROOT_UNSCRIPTED(kmaC_MaterialTable, kmaC_Module)

kmaC_MaterialTable::kmaC_MaterialTable(int rows, int columns) : table(rows, columns) {}

kmaC_MaterialTable::kmaC_MaterialTable(cow_2DArray<double> const& array) : table(array) {}

kmaC_MaterialTable kmaC_MaterialTable::WithEmptyFirstRow() {
    kmaC_MaterialTable result;
    result.allowEmptyFirstRow = true;
    return result;
}

void kmaC_MaterialTable::Rules(mdl_RuleVisitor& v) const {
    for (int row = 0; row < Rows(); ++row) {
        bool const allowed = row == 0 && allowEmptyFirstRow;
        if (!v.Rule(allowed || !mdl_IsBlankRow(table, row), 21)) return;
    }
}

bool kmaC_MaterialTable::operator==(kmaC_MaterialTable const& other) const {
    // Both arrays are held while the comparison runs.
    cow_2DArray<double> const mine = table;
    cow_2DArray<double> const theirs = other.table;
    return mdl_EqualCells(mine, theirs);
}

void kmaC_MaterialTable::Sort(int n) {
    if (n != 0) table = mdl_SortedRows(table, n);
}
