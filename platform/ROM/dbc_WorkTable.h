#pragma once

#include <map>
#include <memory>
#include <set>
#include <vector>

#include "dbc_Places.h"
#include "dbc_UpgradeReport.h"
#include "rfm_Database.h"

class dbc_Row;
class dbc_RowRfm;
class dbc_TableRfm;
class dbc_WorkTables;

/// One class's table on its way through the steps: what a step finds, frozen, and what it leaves.
///
/// A table that no step touches stays as it stands in the work database. Rows are appended and
/// rewritten in place as long as the step's input can be read elsewhere, which is the original;
/// else the table gets a successor, as does one that a step brings to another layout. Nothing grows
/// with the number of rows.
class dbc_WorkTable {
public:
    using Function = void* (*)(dbc_Row const&, dbc_Row&, int);

    dbc_WorkTable(dbc_WorkTables& tables, unsigned typeId, rfm_Table* original, rfm_Table* work);

    unsigned TypeId() const { return m_typeId; }
    /// Whether the work database holds it.
    bool Exists() const { return m_work != nullptr; }
    /// That of the table as it stands, 0 if there is none.
    int Version() const { return m_work ? m_work->Metadata().Version() : 0; }

    void StartStep();
    void EndStep();

    /// The step's input; null if the class has no table in it.
    rfm_Table* Frozen() const { return m_frozen; }
    int FrozenRows() const { return m_frozenRows; }

    /// Makes the table, which must not be there.
    void Create(rfm_TableMetadata const& layout);
    /// Begins to bring the table to another layout.
    void StartRewrite(rfm_TableMetadata const& layout);
    /// Carries every row and runs the function on it, if there is one.
    void Rewrite(Function function);

    // ---- the output, for tables and rows ----
    rfm_Table* Storage() const { return m_successor ? m_successor : m_work; }
    bool Stepping() const { return m_stepping; }
    /// How many rows of a table in its step are brought over.
    int Streamed() const { return m_streamed; }
    int OutputRows();
    dbc_Places& OutputPlaces();
    /// Raises unless the row can be rewritten, and sees to it that the input keeps it.
    void PrepareWrite(int oid);
    void SetPending(dbc_RowRfm* row);
    dbc_RowRfm* Pending() const { return m_pending; }
    void FlushPending();
    /// A row is stored in a table that is not in its step.
    int Append(rfm_Value const* values);

    /// The references of the table bear the numbers of renamed classes no more.
    bool Mapped() const { return m_mapped; }
    void MapReferences();
    rfm_Value MappedClass(rfm_Value const& value) const;
    dbc_ClassReport& Report();
    /// Tells the report that a row has its value in another field.
    void NoteMove(rfm_FieldHandle const& from, rfm_FieldHandle const& to);
    /// Tells the report that a field of a row is not lost, once for each row of a step. Those of
    /// another table can come back to a row at any time, which takes a bit for each.
    void NoteTaken(rfm_FieldHandle const& from, int oid, bool byAnother);
    /// Tells the report what a row of this table that is copied to another loses.
    void CountDropped(dbc_RowRfm const& from, dbc_Places const& places);
    void NoteZero(rfm_FieldHandle const& to);
    /// How many rows have a 0 in the field that stands for no value.
    long long Zeros(std::string const& field) const;
    /// Whether somebody would miss the value: an empty text is none.
    static bool IsHeld(rfm_Value const& value) {
        return value.tag != rfm_Value::Null && (value.tag != rfm_Value::Text || value.length != 0);
    }
    std::string Name() const;
    /// The class ends with this run.
    bool isRetiring = false;
    /// Tells the report what goes with the table.
    void CountRetired();

    /// How many rows of the last rewrite have no value in each column.
    std::vector<long long> const& Unset() const { return m_unset; }
    bool Touched() const { return m_touched; }
    /// Stores the values of a row again after a change, outside of all steps. The cursor goes on.
    template <class Change>
    void CompleteRow(int oid, rfm_Cursor& cursor, std::vector<rfm_Value>& values, Change change) {
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = cursor.Value(static_cast<int>(i));
        change(values);
        m_work->Replace(oid, values.data());
    }

private:
    void Count(dbc_RowRfm const& out, rfm_Cursor& former);
    void SumUp();
    void KnowFields(rfm_TableMetadata const& layout);

    dbc_WorkTables& m_tables;
    unsigned m_typeId;
    rfm_Table* m_original;
    rfm_Table* m_work;
    bool m_pristine;  ///< the work database has what the original has
    bool m_mapped = false;
    bool m_touched = false;

    rfm_Table* m_frozen = nullptr;
    int m_frozenRows = 0;
    rfm_Table* m_successor = nullptr;
    bool m_stepping = false;
    int m_streamed = 0;
    dbc_RowRfm* m_pending = nullptr;
    std::unique_ptr<dbc_Places> m_places;
    std::vector<std::unique_ptr<dbc_Places>> m_formerPlaces;
    rfm_Table const* m_placesOf = nullptr;
    /// The fields whose values came with the file, and not from a step.
    std::set<std::string> m_ownFields;
    /// In the columns of the layout or of the input, as Places have them.
    std::vector<long long> m_filled, m_dropped, m_unset;
    std::vector<int> m_classColumns;
    struct Move {
        int from, to;
        long long* rows;  ///< in the report
    };
    std::vector<Move> m_moves;
    struct Taken {
        int field;
        long long* rows;  ///< in the report
        int last;
        std::vector<bool> seen;
    };
    std::vector<Taken> m_taken;
    struct Zero {
        rfm_FieldHandle field;
        long long rows;
    };
    std::vector<Zero> m_zeros;
};

/// All tables of a run.
class dbc_WorkTables {
public:
    dbc_WorkTables(rfm_Database& original, rfm_WorkDatabase& work);
    ~dbc_WorkTables();

    /// Made when first asked for, also where the class has no table yet.
    dbc_WorkTable& Of(unsigned typeId);
    std::map<unsigned, std::unique_ptr<dbc_WorkTable>>& All() { return m_tables; }

    void StartStep();
    void EndStep();
    void Drop(unsigned typeId);

    rfm_Database& Original() { return m_original; }
    rfm_WorkDatabase& Work() { return m_work; }
    dbc_UpgradeReport& Report() { return m_report; }

    /// Views hold cursors, which must be closed before a table is replaced.
    void Enter(dbc_TableRfm& view) { m_views.insert(&view); }
    void Leave(dbc_TableRfm& view) { m_views.erase(&view); }
    /// From now on, references to the one class are to the other.
    void Rename(unsigned from, unsigned to) { m_renames[from] = to; }
    std::map<unsigned, unsigned> const& Renames() const { return m_renames; }
    rfm_Value Mapped(rfm_Value value) const;

    /// Called after every so many rows, with the part of all passes over rows that is done.
    void (*progress)(void* context, double done) = nullptr;
    void* progressContext = nullptr;
    long long rowsExpected = 0;
    void Progress();

private:
    rfm_Database& m_original;
    rfm_WorkDatabase& m_work;
    std::map<unsigned, std::unique_ptr<dbc_WorkTable>> m_tables;
    std::set<dbc_TableRfm*> m_views;
    std::map<unsigned, unsigned> m_renames;
    dbc_UpgradeReport m_report;
    long long m_rows = 0;
};
