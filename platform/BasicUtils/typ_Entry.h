#pragma once

#include <cstdint>

/// A TypeId is a number and not a language feature because it is written into databases and
/// compared across libraries: the architecture component above, the row of that component's table
/// below.
constexpr unsigned typ_MakeTypeId(std::uint16_t component, std::uint16_t row) {
    return (unsigned{component} << 16) | row;
}

/// The parent of every class that has none in the system.
inline constexpr unsigned typ_root = 1;
/// Stands in the parent column of rows that never declared a parent; it is nobody's ancestor.
inline constexpr unsigned typ_noParent = 0;

inline constexpr unsigned typ_placeholderKind = 0;
inline constexpr unsigned typ_classKind = 7;

/// One row of a type table. Rows are persistent: they are appended, never renumbered or renamed.
struct typ_Entry {
    unsigned kind;
    unsigned parent;
    char const* name;  ///< null in a placeholder
};
