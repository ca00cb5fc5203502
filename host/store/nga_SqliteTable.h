#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "nga_Sqlite.h"
#include "rfm_Database.h"

namespace nga {

/// The column that makes a row's number its key; named, so that no tool renumbers rows in passing.
inline constexpr char const* rowNumberColumn = "##OID";

/// Raises a failure of the store as the interface of record stores wants it.
[[noreturn]] void RaiseStore(std::string const& cause, int line);

/// Runs \p work and raises what SQLite says against it as a failure of the store.
template <class Work>
auto InStoreTerms(Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (SqliteError const& error) {
        RaiseStore(error.what(), __LINE__);
    }
}

/// One table of a SqliteDatabase. Its statements are prepared when first needed and kept.
class SqliteTable final : public rfm_Table {
public:
    /// In place of a file's size: the table is new and empty.
    static constexpr long long New = -1;

    /// \p inOrder: the table has the row number and the columns of the layout in this order, and no
    /// others.
    SqliteTable(SqliteConnection const& connection, rfm_TableMetadata const& metadata,
                std::string const& sqlTable, bool inOrder, long long fileSize);
    ~SqliteTable() override;

    rfm_TableMetadata const& Metadata() const override { return m_metadata; }
    int RowCount() override;
    int Append(rfm_Value const* values) override;
    void Replace(int oid, rfm_Value const* values) override;
    std::unique_ptr<rfm_Cursor> OpenCursor() override;
    int FindRow(int intColumn, long long integer, int textColumn, cow_String const& text) override;

    /// Hands rows that still wait to SQLite. Whoever looks at the table other than through this
    /// object calls it first.
    void Flush();

    std::string const& SqlTable() const { return m_sqlTable; }
    /// The SQL table bears another name now. No cursor is open.
    void Renamed(std::string const& sqlTable);

private:
    friend class SqliteCursor;

    /// A prepared INSERT, and which of its parameters hold values of its former run.
    struct Insert {
        SqliteStatement statement;
        std::vector<bool> bound;
    };
    /// Rows that wait: values whose texts and bytes stand in a buffer, at the offset in `integer`.
    struct Waiting {
        std::vector<rfm_Value> values;
        std::string data;
        int rows = 0;
    };

    Insert MakeInsert(int rows) const;
    Insert MakeInsertAt(char const* verb) const;
    void InsertAt(Insert& insert, int oid, rfm_Value const* values);
    void Wait(rfm_Value const* values);
    void RunInsert(Insert& insert, rfm_Value const* values);
    SqliteStatement TakeReader();
    std::string ColumnList() const;

    SqliteConnection const& m_connection;
    rfm_TableMetadata m_metadata;
    std::string m_sqlTable;
    bool m_inOrder;
    long long m_fileSize;
    int m_rowCount = -1;  ///< not asked yet
    Insert m_insertOne;
    Insert m_insertMany;
    Insert m_replace;
    std::vector<rfm_Value> m_row;  ///< a row with its number before it
    Waiting m_waiting;
    SqliteStatement m_find;
    int m_findColumns[2] = {-1, -1};
    /// Statements of cursors that are gone, for those to come.
    std::shared_ptr<std::vector<SqliteStatement>> m_readers;
};

}  // namespace nga
