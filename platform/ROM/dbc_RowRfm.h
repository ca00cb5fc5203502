#pragma once

#include <deque>
#include <memory>
#include <utility>
#include <vector>

#include "dbc_Places.h"
#include "dbc_Row.h"
#include "rfm_Database.h"

class dbc_WorkTable;

/// A row over a record store. It stands on stored rows through cursors, or holds the values that
/// are to be stored.
class dbc_RowRfm final : public dbc_Row {
public:
    explicit dbc_RowRfm(dbc_WorkTable& table) : m_table(table) {}

    // ---- for tables ----
    /// Reads through cursors, which stay the caller's: on the row itself, on the row that it is
    /// carried from, either or both.
    void StartRead(dbc_Places& places, int oid, rfm_Cursor* own, rfm_Cursor* former);
    /// Holds what is carried from the former row; texts stay where the cursor has them.
    void StartCarried(dbc_Places& places, int oid, rfm_Cursor& former);
    /// Holds copies of the values of a stored row.
    void StartWrite(dbc_Places& places, int oid, rfm_Cursor& own, rfm_Cursor* former);
    /// Holds no values yet.
    void StartNew(dbc_Places& places, int oid);
    /// Takes over what a row of the input has in the columns that both layouts have.
    void Carry(dbc_RowRfm const& from);
    /// Maps the numbers of renamed classes in the given columns.
    void MapClasses(std::vector<int> const& columns);
    /// The values to store, with the arrays' bytes in them.
    rfm_Value const* Values();
    rfm_Value Value(int column) const { return m_values[static_cast<std::size_t>(column)]; }
    /// A column of a row of the input.
    rfm_Value InputValue(int column) const { return m_own->Value(column); }
    bool IsNew() const { return m_new; }
    /// Stores what is held, if anything is.
    void Store();
    /// Where the row goes when it is handed back; null where nobody keeps it.
    std::vector<dbc_RowRfm*>* home = nullptr;
    /// Nobody holds the row any more: it goes back as soon as it is stored.
    bool abandoned = false;
    std::unique_ptr<rfm_Cursor> ownCursor, formerCursor;

    // ---- dbc_Row ----
    bool HasField(rfm_FieldHandle const& field) const override;
    bool IsSet(rfm_FieldHandle const& field) const override;
    int GetInt(rfm_FieldHandle const& field) const override;
    float GetFloat(rfm_FieldHandle const& field) const override;
    double GetDouble(rfm_FieldHandle const& field) const override;
    rfm_Handle GetHandle(rfm_FieldHandle const& field) const override;
    cow_String GetString(rfm_FieldHandle const& field) const override;
    void SetInt(rfm_FieldHandle const& field, int value) override;
    void SetFloat(rfm_FieldHandle const& field, float value) override;
    void SetDouble(rfm_FieldHandle const& field, double value) override;
    void SetHandle(rfm_FieldHandle const& field, rfm_Handle const& value) override;
    void SetString(rfm_FieldHandle const& field, cow_String const& value) override;
    void Clear(rfm_FieldHandle const& field) override;
    int Oid() const override { return m_oid; }
    void ReleaseRow() const override;
    std::string Where() const override;
    void NoteMove(dbc_Row const& source, rfm_FieldHandle const& from,
                  rfm_FieldHandle const& to) override;
    void NoteZero(rfm_FieldHandle const& to) override;
    void Note(char const* text) override;
    std::string Uid() const override;
    void SetUid(std::string const& bytes) override;

private:
    enum class Holds : unsigned char { Nothing, Cursors, Values };

    void Start(dbc_Places& places, int oid, Holds holds);
    rfm_Value At(dbc_Places::Place place) const;
    rfm_Value Get(rfm_FieldHandle const& field) const;
    void Set(rfm_FieldHandle const& field, rfm_Value const& value, rfm_ColumnKind kind);
    [[noreturn]] void FailKind(rfm_FieldHandle const& field, rfm_Value const& value,
                               char const* expected) const;

    dbc_WorkTable& m_table;
    dbc_Places* m_places = nullptr;
    /// Between the layouts of rows that were carried, kept for the next one.
    std::unique_ptr<dbc_Places> m_between;
    rfm_TableMetadata const* m_betweenFrom = nullptr;
    rfm_TableMetadata const* m_betweenTo = nullptr;
    int m_oid = -1;
    Holds m_holds = Holds::Nothing;
    bool m_new = false;
    bool m_changed = false;
    rfm_Cursor* m_own = nullptr;
    rfm_Cursor* m_former = nullptr;
    std::vector<rfm_Value> m_values;
    std::string m_copied;             ///< texts and bytes of values that were copied
    std::deque<std::string> m_bytes;  ///< of values that were set
    std::vector<cow_String> m_texts;
    std::vector<std::pair<int, rfm_Handle>> m_arrays;
    /// Columns that the table does not have, by the number of their name.
    std::vector<std::pair<int, rfm_Value>> m_extras;
};
