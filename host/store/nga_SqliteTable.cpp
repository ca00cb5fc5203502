#include "nga_SqliteTable.h"

#include <climits>
#include <cmath>

namespace nga {

/// Steps forward while the rows are asked for in their order, and looks the row up otherwise.
class SqliteCursor final : public rfm_Cursor {
public:
    SqliteCursor(SqliteTable& table, SqliteStatement statement)
        : m_readers(table.m_readers),
          m_rowCount(table.RowCount()),
          m_columns(table.m_metadata.Columns()),
          m_statement(std::move(statement)) {}
    ~SqliteCursor() override {
        m_statement.Reset();
        // Without room for it the statement ends here.
        try {
            m_readers->push_back(std::move(m_statement));
        } catch (...) {
        }
    }

    bool Seek(int oid) override {
        return InStoreTerms([&] {
            if (oid == m_oid && oid >= 0) return true;
            bool const next = m_oid >= 0 && oid == m_oid + 1;
            m_oid = -1;
            if (oid < 0 || oid >= m_rowCount) return false;
            if (!next) {
                m_statement.Reset();
                m_statement.BindInt(0, oid);
            }
            // Rows that do not rise would let a damaged file go round in circles.
            if (!m_statement.Step() || m_statement.Int(0) != oid) return false;
            m_oid = oid;
            return true;
        });
    }

    int Oid() const override { return m_oid; }

    rfm_Value Value(int column) override {
        if (m_oid < 0 || column < 0 || column >= static_cast<int>(m_columns.size()))
            return rfm_Value();
        rfm_Value const value = m_statement.Column(column + 1);
        if (value.tag == rfm_Value::Bytes && value.length == nanByteCount &&
            m_columns[static_cast<std::size_t>(column)].kind == rfm_ColumnKind::Double) {
            double const number = NanFromBytes(value.bytes);
            // Numbers have no second form.
            if (std::isnan(number)) return rfm_Value::OfDouble(number);
        }
        return value;
    }

private:
    std::shared_ptr<std::vector<SqliteStatement>> m_readers;
    int m_rowCount;
    std::vector<rfm_Column> const& m_columns;
    SqliteStatement m_statement;
    int m_oid = -1;
};

SqliteTable::SqliteTable(SqliteConnection const& connection, rfm_TableMetadata const& metadata,
                         std::string const& sqlTable, long long fileSize)
    : m_connection(connection),
      m_metadata(metadata),
      m_sqlTable(sqlTable),
      m_fileSize(fileSize),
      m_readers(std::make_shared<std::vector<SqliteStatement>>()) {
    if (fileSize == New) m_rowCount = 0;
}

SqliteTable::~SqliteTable() = default;

std::string SqliteTable::ColumnList() const {
    std::string list;
    for (rfm_Column const& column : m_metadata.Columns())
        list += (list.empty() ? "" : ",") + SqlName(column.name.View());
    return list;
}

int SqliteTable::RowCount() {
    if (m_rowCount >= 0) return m_rowCount;
    return InStoreTerms([&] {
        SqliteStatement last(m_connection, "SELECT max(" + SqlName(rowNumberColumn) + ") FROM " +
                                               SqlName(m_sqlTable));
        long long const count =
            last.Step() && last.Column(0).tag == rfm_Value::Int ? last.Int(0) + 1 : 0;
        // No row is smaller than a byte.
        if (count < 0 || count > m_fileSize || count > INT_MAX)
            RaiseStore("table " + m_sqlTable + " numbers more rows than the file can hold",
                       __LINE__);
        return m_rowCount = static_cast<int>(count);
    });
}

void SqliteTable::BindRow(SqliteStatement& statement, std::vector<bool>& bound,
                          rfm_Value const* values) {
    for (std::size_t i = 0; i < bound.size(); ++i) {
        bool const given = values[i].tag != rfm_Value::Null;
        if (given)
            statement.Bind(static_cast<int>(i), values[i]);
        else if (bound[i])
            statement.BindNull(static_cast<int>(i));
        bound[i] = given;
    }
}

int SqliteTable::Append(rfm_Value const* values) {
    if (m_rowCount == INT_MAX) RaiseStore("table " + m_sqlTable + " is full", __LINE__);
    return InStoreTerms([&] {
        std::size_t const columns = m_metadata.Columns().size();
        if (RowCount() == 0) {
            // SQLite numbers from 1 on its own, and goes on from whatever stands there.
            std::string marks = "0";
            for (std::size_t i = 0; i < columns; ++i) marks += ",?";
            SqliteStatement first(m_connection,
                                  "INSERT INTO " + SqlName(m_sqlTable) + " VALUES(" + marks + ")");
            std::vector<bool> bound(columns);
            BindRow(first, bound, values);
            first.Run();
            return m_rowCount++;
        }
        if (!m_append) {
            std::string marks;
            for (std::size_t i = 0; i < columns; ++i) marks += i ? ",?" : "?";
            m_append = SqliteStatement(m_connection, "INSERT INTO " + SqlName(m_sqlTable) + "(" +
                                                         ColumnList() + ") VALUES(" + marks + ")");
            m_appendBound.assign(columns, false);
        }
        BindRow(m_append, m_appendBound, values);
        m_append.Run();
        return m_rowCount++;
    });
}

void SqliteTable::Replace(int oid, rfm_Value const* values) {
    if (oid < 0 || oid >= RowCount())
        RaiseStore("table " + m_sqlTable + " has no row to be written again", __LINE__);
    InStoreTerms([&] {
        std::size_t const columns = m_metadata.Columns().size();
        std::string marks = std::to_string(oid);
        for (std::size_t i = 0; i < columns; ++i) marks += ",?";
        SqliteStatement replace(m_connection,
                                "REPLACE INTO " + SqlName(m_sqlTable) + " VALUES(" + marks + ")");
        std::vector<bool> bound(columns);
        BindRow(replace, bound, values);
        replace.Run();
    });
}

SqliteStatement SqliteTable::TakeReader() {
    if (!m_readers->empty()) {
        SqliteStatement statement = std::move(m_readers->back());
        m_readers->pop_back();
        return statement;
    }
    std::string const number = SqlName(rowNumberColumn);
    std::string const columns = ColumnList();
    return SqliteStatement(m_connection, "SELECT " + number + (columns.empty() ? "" : ",") +
                                             columns + " FROM " + SqlName(m_sqlTable) + " WHERE " +
                                             number + ">=? ORDER BY " + number);
}

std::unique_ptr<rfm_Cursor> SqliteTable::OpenCursor() {
    return InStoreTerms([&]() -> std::unique_ptr<rfm_Cursor> {
        return std::make_unique<SqliteCursor>(*this, TakeReader());
    });
}

int SqliteTable::FindRow(int intColumn, long long integer, int textColumn, cow_String const& text) {
    return InStoreTerms([&] {
        if (!m_find || m_findColumns[0] != intColumn || m_findColumns[1] != textColumn) {
            std::vector<rfm_Column> const& columns = m_metadata.Columns();
            auto const name = [&columns](int column) {
                return SqlName(columns.at(static_cast<std::size_t>(column)).name.View());
            };
            std::string const number = SqlName(rowNumberColumn);
            m_find = SqliteStatement(
                m_connection, "SELECT " + number + " FROM " + SqlName(m_sqlTable) + " WHERE " +
                                  name(intColumn) + "=? AND " + name(textColumn) + "=? ORDER BY " +
                                  number + " LIMIT 1");
            m_findColumns[0] = intColumn;
            m_findColumns[1] = textColumn;
        }
        m_find.BindInt(0, integer);
        m_find.Bind(1, rfm_Value::OfText(text.Text(), text.Length()));
        long long const row = m_find.Step() ? m_find.Int(0) : -1;
        m_find.Reset();
        return row >= 0 && row < RowCount() ? static_cast<int>(row) : -1;
    });
}

}  // namespace nga
