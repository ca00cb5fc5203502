#pragma once

#include <initializer_list>

#include "cls_xp.h"

/// A table of these rows.
inline cls_xp2DArrayDouble Table(std::initializer_list<std::initializer_list<double>> rows) {
    int const columns = rows.size() == 0 ? 0 : static_cast<int>(rows.begin()->size());
    cls_xp2DArrayDouble table(static_cast<int>(rows.size()), columns);
    int row = 0;
    for (auto const& cells : rows) {
        int column = 0;
        for (double const cell : cells) table.Get().Cell(row, column++) = cell;
        ++row;
    }
    return table;
}
