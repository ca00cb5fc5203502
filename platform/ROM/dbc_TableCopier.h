#pragma once

#include "cow_List.h"
#include "cow_Map.h"
#include "cow_String.h"
#include "dbc_TableMem.h"

/// Takes rows from table to table.
class dbc_TableCopier {
public:
    static constexpr int groupSize = 32;

    /// Appends a group of rows of the input to the output: every column that both layouts have
    /// under one name in one kind. Where the classes have different parents, the row has no base
    /// any more, as has one whose base is of a deleted class. \p names and the last number are
    /// passed on by conversions.
    void CopyRows(dbc_Table const& in, rfm_TableMetadata const& inLayout, dbc_Table& out,
                  rfm_TableMetadata const& outLayout, cow_List<unsigned> const& deleted,
                  cow_Map<cow_String, cow_String> const& names, int first, int count, int);
    /// Stores what a temporary table still holds. Its rows have had their numbers in the output
    /// from the start, so that the numbers that conversions pass on here are not needed.
    void Store(dbc_TableMem& table, cow_String const& className, int, int, int);
};
