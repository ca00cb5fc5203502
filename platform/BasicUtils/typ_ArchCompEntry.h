#pragma once

#include <cstdint>

#include "typ_Entry.h"

/// What a component hands to the type table. Does not own the rows: they are constant data of the
/// component and outlive the process's last look-up.
class typ_ArchCompEntry {
public:
    constexpr typ_ArchCompEntry() = default;
    /// `count` includes the placeholder in row 0.
    constexpr typ_ArchCompEntry(typ_Entry const* rows, unsigned count)
        : m_rows(rows), m_count(rows ? count : 0) {}

    constexpr typ_Entry const* Rows() const { return m_rows; }
    constexpr unsigned Count() const { return m_count; }
    /// Null beyond the table.
    constexpr typ_Entry const* Row(unsigned row) const {
        return row < m_count ? m_rows + row : nullptr;
    }

private:
    typ_Entry const* m_rows = nullptr;
    unsigned m_count = 0;
};
