#pragma once

#include "mdl_Describe.h"
#include "omu_TypeIds.h"

/// The numeric table of connector behaviours: rows by columns of doubles, row-major, shared by
/// copy-on-write. Its first columns are the data, its last columns the independent variables. Held
/// by value in its owner.
class mdl_PropertyTable : public mem_AllocationOperators {
    DD_ROOT_UNSCRIPTED(mdl_PropertyTable, mdl_PropertyTableTypeId, 203)
public:
    /// A new copy, which the caller owns. It shares the array.
    virtual mdl_PropertyTable* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_FIELD(cls_xp2DArrayDouble, table)
    DD_END

    /// Shares the array.
    explicit mdl_PropertyTable(cow_2DArray<double> const& array);
    mdl_PropertyTable(int rows, int columns);

    int Rows() const { return table.Rows(); }
    int Columns() const { return table.Columns(); }
    /// Cell (row, column), from 0; reads in place and does not check the range.
    double Cell(int row, int column) const { return table.Cell(row, column); }
    /// The same for writing: makes the array unshared first.
    double& MutableCell(int row, int column) { return table.Get().Cell(row, column); }

    /// Orders the rows, ascending and stable, by the last \p n columns, the last being the most
    /// significant; see mdl_SortedRows. 0 leaves the table as it is.
    void Sort(int n);

    /// Same size and equal cells; a NaN equals nothing. The identity takes no part.
    bool operator==(mdl_PropertyTable const& other) const;
    bool operator!=(mdl_PropertyTable const& other) const { return !(*this == other); }

    /// No row may be all zero; a NaN is not zero. Raises a nex_TextException.
    void AssertValid() const;
};
