#pragma once

#include <exception>
#include <string>

#include "cow_String.h"
#include "rfm_FieldHandle.h"
#include "rfm_Handle.h"

/// One row of a table while a database is converted. Rows belong to their table and are handed back
/// with ReleaseRow; what was written to one is stored then.
///
/// Reading a column without a value, or that the table does not have, gives 0 or the empty text. A
/// value of another kind raises a failure that names table, row and field.
class dbc_Row {
public:
    virtual ~dbc_Row();
    /// Whether the table has the column; for the bare name of an object field, its columns.
    virtual bool HasField(rfm_FieldHandle const& field) const = 0;
    /// Whether the column holds a value; for the bare name of an object field, its number of row.
    virtual bool IsSet(rfm_FieldHandle const& field) const = 0;
    /// Whole numbers, flags (0 or 1), TypeIds and numbers of rows.
    virtual int GetInt(rfm_FieldHandle const& field) const = 0;
    virtual float GetFloat(rfm_FieldHandle const& field) const = 0;
    virtual double GetDouble(rfm_FieldHandle const& field) const = 0;
    virtual rfm_Handle GetHandle(rfm_FieldHandle const& field) const = 0;
    /// Texts and literals of enumerations.
    virtual cow_String GetString(rfm_FieldHandle const& field) const = 0;
    // A column that the table does not have is accepted: what it is given can be read from this row
    // while it is held, and goes with it.
    virtual void SetInt(rfm_FieldHandle const& field, int value) = 0;
    virtual void SetFloat(rfm_FieldHandle const& field, float value) = 0;
    virtual void SetDouble(rfm_FieldHandle const& field, double value) = 0;
    /// The array's bytes are taken when the row is handed back.
    virtual void SetHandle(rfm_FieldHandle const& field, rfm_Handle const& value) = 0;
    virtual void SetString(rfm_FieldHandle const& field, cow_String const& value) = 0;
    /// Leaves the column without a value.
    virtual void Clear(rfm_FieldHandle const& field) = 0;
    /// The row's number in its table.
    virtual int Oid() const = 0;
    virtual void ReleaseRow() const = 0;

    /// "row 3 of table kmaC_Plastic", for failures.
    virtual std::string Where() const = 0;
    /// Tells the report that this row has in \p to what a row of the input has in \p from, which is
    /// not lost with that row's column then. A source without a value is passed over.
    virtual void NoteMove(dbc_Row const& source, rfm_FieldHandle const& from,
                          rfm_FieldHandle const& to) = 0;
    /// Tells the report that this row got a 0 because its source has no value.
    virtual void NoteZero(rfm_FieldHandle const& to) = 0;
    /// Tells the report something about this row that a person should know.
    virtual void Note(char const* text) = 0;
    /// The identity of the row's object, 16 bytes; empty if it has none.
    virtual std::string Uid() const = 0;
    virtual void SetUid(std::string const& bytes) = 0;
};

/// Hands a row back at the end of a scope.
template <class Row>
class dbc_HeldRow {
public:
    explicit dbc_HeldRow(Row& row) : m_row(&row) {}
    ~dbc_HeldRow() noexcept(false) {
        // Storing a row can fail, and is not tried where something has failed already.
        if (std::uncaught_exceptions() == m_uncaught) m_row->ReleaseRow();
    }
    dbc_HeldRow(dbc_HeldRow const&) = delete;
    dbc_HeldRow& operator=(dbc_HeldRow const&) = delete;
    Row& operator*() const { return *m_row; }
    Row* operator->() const { return m_row; }

private:
    Row* m_row;
    int m_uncaught = std::uncaught_exceptions();
};
