#pragma once

#include <memory>
#include <vector>

#include "rfm_Array.h"
#include "rfm_TableMetadata.h"
#include "rfm_Value.h"

/// Reads a table's rows. It stands on one row at a time; forward steps are what a store is fast at.
class rfm_Cursor {
public:
    virtual ~rfm_Cursor();
    /// Goes to a row; false if the table has none of that number.
    virtual bool Seek(int oid) = 0;
    /// The row it stands on, -1 before the first Seek and after one that failed.
    virtual int Oid() const = 0;
    /// A column of the row. Views are good until the next Seek.
    virtual rfm_Value Value(int column) = 0;
};

/// One table of records: rows numbered from 0 in the order in which they were appended.
class rfm_Table {
public:
    virtual ~rfm_Table();
    virtual rfm_TableMetadata const& Metadata() const = 0;
    virtual int RowCount() = 0;
    /// Appends a row and returns its number. \p values has one value for each column.
    virtual int Append(rfm_Value const* values) = 0;
    /// Writes a row again.
    virtual void Replace(int oid, rfm_Value const* values) = 0;
    virtual std::unique_ptr<rfm_Cursor> OpenCursor() = 0;
    /// The number of the row in which two columns hold an integer and a text (a map's entry by its
    /// owner and key); -1 if there is none. A store may keep an index for it.
    virtual int FindRow(int intColumn, long long integer, int textColumn,
                        cow_String const& text) = 0;
};

/// A record store: tables by TypeId. What stands behind it — memory, a file, a server — is not
/// known here. Failures are raised as nex_TextException.
class rfm_Database {
public:
    virtual ~rfm_Database();
    /// The table of a class, owned by the store; null if nothing of it was ever stored.
    virtual rfm_Table* FindTable(unsigned typeId) = 0;
    /// Makes a table; the store has none of that TypeId yet.
    virtual rfm_Table& CreateTable(rfm_TableMetadata const& metadata) = 0;
    /// All tables, by rising TypeId.
    virtual std::vector<rfm_Table*> Tables() = 0;

    /// Opens the array that a row's handle refers to. The numbers are for stores that keep arrays
    /// apart from rows: first record and mode; -1 and 0 mean the whole, for reading.
    std::unique_ptr<rfm_Array<double, 4>> ArrayDouble(rfm_Handle const& handle, int first,
                                                      int mode);
    /// Makes a new, empty array of \p width numbers a value.
    std::unique_ptr<rfm_Array<double, 4>> ArrayDouble(int width, int first, int mode);
};

/// A store that begins as a copy of another and becomes its successor, table by table.
class rfm_WorkDatabase : public rfm_Database {
public:
    /// Makes a table that is to take the place of the one of its TypeId, if there is one. With \p
    /// keepFormer, the former table can be read until \ref Settle; else it ends now, which saves
    /// the room for both. There is one such table of a TypeId at a time.
    virtual rfm_Table& MakeSuccessor(rfm_TableMetadata const& metadata, bool keepFormer) = 0;
    /// Puts the successor in the former table's place. No cursor on either is open; pointers to the
    /// former table end, those to the successor stay good.
    virtual void Settle(unsigned typeId) = 0;
    /// Removes a table, on which no cursor is open.
    virtual void DropTable(unsigned typeId) = 0;
};
