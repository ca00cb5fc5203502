#pragma once

#include "cow_2DArray.h"

// What tables of numbers do with their rows, whoever holds them.

/// The rows in ascending order by the last \p n columns, the rightmost being the most significant;
/// rows that tie keep their order. With a NaN in a key column it is an insertion sort, where a
/// NaN stops the walk of its row: it is neither moved nor passed; such tables take the square of
/// their rows. The result is a new array, also where nothing moves; an n below 1 moves nothing.
/// More key columns than columns are out of range, which ends the process as every checked access
/// does, unless there are too few rows to compare.
cow_2DArray<double> mdl_SortedRows(cow_2DArray<double> const& array, int n);

/// Same size and equal cells. A NaN equals nothing, so that a table that has one is not even equal
/// to itself.
bool mdl_EqualCells(cow_2DArray<double> const& a, cow_2DArray<double> const& b);

/// Whether all cells of a row are zero, of either sign. A row without cells is not blank.
bool mdl_IsBlankRow(cow_2DArray<double> const& array, int row);
