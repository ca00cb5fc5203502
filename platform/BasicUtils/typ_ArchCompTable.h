#pragma once

#include <cstdint>

#include "typ_ArchCompEntry.h"

/// The type tables of all components of the process. Filled during start on one thread and only
/// read afterwards. Tables are never withdrawn: names and ancestry stay known after a module went
/// down.
class typ_ArchCompTable {
public:
    /// A later table of the same component takes the place of the earlier one, so that a module
    /// that is brought up again may enter its table again.
    static void InsertEntry(std::uint16_t component, typ_ArchCompEntry entry);

    /// The persistent name; an empty text for a placeholder or a number that no table holds.
    static char const* GetName(unsigned typeId);

    /// Whether `candidate` is the type itself or stands above it by the parent columns. Ends on
    /// every input: tables exist in which a row names itself as its parent.
    static bool IsParent(unsigned typeId, unsigned candidate);

    /// The parent column as it stands; 0 where no table holds the number.
    static unsigned GetParent(unsigned typeId);

    /// Null where no table holds the number.
    static typ_Entry const* Find(unsigned typeId);
};
