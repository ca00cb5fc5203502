#pragma once

#include "kmaC_assert.h"
#include "mdl_Describe.h"

/// The numeric table of material options: rows by columns of doubles, row-major, shared by
/// copy-on-write. Not an option: held by value in its owner.
class kmaC_MaterialTable : public mem_AllocationOperators {
    DD_ROOT_UNSCRIPTED(kmaC_MaterialTable, 0x2380058, 203)
public:
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;

    DD_FIELD(cls_xp2DArrayDouble, table)
    /// When true, the first row may be all zero.
    DD_FIELD(bool, allowEmptyFirstRow, false)
    DD_END

    /// All cells 0.
    kmaC_MaterialTable(int rows, int columns);
    /// Shares the array.
    explicit kmaC_MaterialTable(cow_2DArray<double> const& array);
    /// An empty table whose first row may be all zero.
    static kmaC_MaterialTable WithEmptyFirstRow();

    int Rows() const { return table.Rows(); }
    int Columns() const { return table.Columns(); }
    /// Cell (row, column), from 0; reads in place and does not check the range.
    double Cell(int row, int column) const { return table.ConstGet().Cell(row, column); }
    /// The same for writing: makes the array unshared first.
    double& MutableCell(int row, int column) { return table.Get().Cell(row, column); }

    /// Orders the rows, ascending and stable, by the last \p n columns, the rightmost being the
    /// most significant; see mdl_SortedRows. 0 leaves the table as it is. An n above the column
    /// count ends the process, so a caller who does not know n checks it first.
    void Sort(int n);

    /// Same size and equal cells; a NaN equals nothing. Flag and identity take no part.
    bool operator==(kmaC_MaterialTable const& other) const;
    bool operator!=(kmaC_MaterialTable const& other) const { return !(*this == other); }

    /// No row may be all zero, but for the first where allowEmptyFirstRow says so (code 21).
    void AssertValid() const;
};
