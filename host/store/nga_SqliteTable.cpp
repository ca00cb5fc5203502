#include "nga_SqliteTable.h"

#include <climits>
#include <cmath>

namespace nga {

namespace {

// A statement costs as much as a row or two, so that the rows of a narrow table go in several at a
// time once there are so many that preparing the longer statement pays. For wide tables it does
// not: SQLite copies every column once more.
constexpr int rowsTogether = 16;
constexpr int columnsTogether = 32;
constexpr int rowsAtOnce = 256;
constexpr std::size_t bytesTogether = 1 << 20;

}  // namespace

/// Steps forward while the rows are asked for in their order, and looks the row up otherwise.
class SqliteCursor final : public rfm_Cursor {
public:
    SqliteCursor(SqliteTable& table, SqliteStatement statement)
        : m_readers(table.m_readers),
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
            if (oid < 0) return false;
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
    std::vector<rfm_Column> const& m_columns;
    SqliteStatement m_statement;
    int m_oid = -1;
};

SqliteTable::SqliteTable(SqliteConnection const& connection, rfm_TableMetadata const& metadata,
                         std::string const& sqlTable, bool inOrder, long long fileSize)
    : m_connection(connection),
      m_metadata(metadata),
      m_sqlTable(sqlTable),
      m_inOrder(inOrder),
      m_fileSize(fileSize),
      m_readers(std::make_shared<std::vector<SqliteStatement>>()) {
    if (fileSize == New) m_rowCount = 0;
}

SqliteTable::~SqliteTable() = default;

std::string SqliteTable::ColumnList() const {
    std::string list;
    for (rfm_Column const& column : m_metadata.Columns()) {
        if (!list.empty()) list += ',';
        AppendSqlName(list, column.name.View());
    }
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

SqliteTable::Insert SqliteTable::MakeInsert(int rows) const {
    std::size_t const columns = m_metadata.Columns().size();
    std::string row = "(";
    for (std::size_t i = 0; i < columns; ++i) row += i ? ",?" : "?";
    row += ')';
    std::string sql = "INSERT INTO " + SqlName(m_sqlTable) + "(" + ColumnList() + ") VALUES" + row;
    for (int i = 1; i < rows; ++i) sql += ',' + row;
    return {SqliteStatement(m_connection, sql),
            std::vector<bool>(columns * static_cast<std::size_t>(rows))};
}

void SqliteTable::RunInsert(Insert& insert, rfm_Value const* values) {
    for (std::size_t i = 0; i < insert.bound.size(); ++i) {
        bool const given = values[i].tag != rfm_Value::Null;
        if (given)
            insert.statement.Bind(static_cast<int>(i), values[i]);
        else if (insert.bound[i])
            insert.statement.BindNull(static_cast<int>(i));
        insert.bound[i] = given;
    }
    insert.statement.Run();
}

SqliteTable::Insert SqliteTable::MakeInsertAt(char const* verb) const {
    std::string columns = SqlName(rowNumberColumn), places = "?";
    if (m_metadata.ColumnCount() > 0) columns += ',' + ColumnList();
    for (int i = 0; i < m_metadata.ColumnCount(); ++i) places += ",?";
    return {SqliteStatement(m_connection, verb + (" INTO " + SqlName(m_sqlTable)) + '(' + columns +
                                              ") VALUES(" + places + ')'),
            std::vector<bool>(m_metadata.Columns().size() + 1)};
}

void SqliteTable::InsertAt(Insert& insert, int oid, rfm_Value const* values) {
    m_row.assign(1, rfm_Value::OfInt(oid));
    m_row.insert(m_row.end(), values, values + m_metadata.ColumnCount());
    RunInsert(insert, m_row.data());
}

void SqliteTable::Wait(rfm_Value const* values) {
    for (int i = 0; i < m_metadata.ColumnCount(); ++i) {
        rfm_Value value = values[i];
        if (value.tag == rfm_Value::Text || value.tag == rfm_Value::Bytes) {
            auto const offset = static_cast<long long>(m_waiting.data.size());
            if (value.length > 0)
                m_waiting.data.append(static_cast<char const*>(value.bytes),
                                      static_cast<std::size_t>(value.length));
            value.integer = offset;
        }
        m_waiting.values.push_back(value);
    }
    ++m_waiting.rows;
}

void SqliteTable::Flush() {
    if (m_waiting.rows == 0) return;
    for (rfm_Value& value : m_waiting.values)
        if (value.tag == rfm_Value::Text || value.tag == rfm_Value::Bytes)
            value.bytes = m_waiting.data.data() + value.integer;
    InStoreTerms([&] {
        if (m_waiting.rows == rowsTogether) {
            if (!m_insertMany.statement) m_insertMany = MakeInsert(rowsTogether);
            RunInsert(m_insertMany, m_waiting.values.data());
        } else {
            for (int row = 0; row < m_waiting.rows; ++row)
                RunInsert(m_insertOne, m_waiting.values.data() + row * m_metadata.ColumnCount());
        }
    });
    m_waiting.values.clear();
    m_waiting.data.clear();
    m_waiting.rows = 0;
}

int SqliteTable::Append(rfm_Value const* values) {
    if (RowCount() == INT_MAX) RaiseStore("table " + m_sqlTable + " is full", __LINE__);
    return InStoreTerms([&] {
        if (m_rowCount == 0) {
            // SQLite numbers from 1 on its own, and goes on from whatever stands there.
            Insert first = MakeInsertAt("INSERT");
            InsertAt(first, 0, values);
        } else {
            if (!m_insertOne.statement) m_insertOne = MakeInsert(1);
            if (m_rowCount < rowsAtOnce || m_metadata.ColumnCount() > columnsTogether) {
                RunInsert(m_insertOne, values);
            } else {
                Wait(values);
                if (m_waiting.rows == rowsTogether || m_waiting.data.size() > bytesTogether)
                    Flush();
            }
        }
        return m_rowCount++;
    });
}

void SqliteTable::Replace(int oid, rfm_Value const* values) {
    if (oid < 0 || oid >= RowCount())
        RaiseStore("table " + m_sqlTable + " has no row to be written again", __LINE__);
    Flush();
    InStoreTerms([&] {
        if (!m_replace.statement) m_replace = MakeInsertAt("REPLACE");
        InsertAt(m_replace, oid, values);
    });
}

void SqliteTable::Renamed(std::string const& sqlTable) {
    Flush();
    m_sqlTable = sqlTable;
    m_insertOne = Insert();
    m_insertMany = Insert();
    m_replace = Insert();
    m_find = SqliteStatement();
    m_readers->clear();
}

SqliteStatement SqliteTable::TakeReader() {
    if (!m_readers->empty()) {
        SqliteStatement statement = std::move(m_readers->back());
        m_readers->pop_back();
        return statement;
    }
    std::string const number = SqlName(rowNumberColumn);
    std::string columns = "*";
    // Names lengthen the preparation, and are only needed where the order differs.
    if (!m_inOrder) {
        columns = number;
        if (m_metadata.ColumnCount() > 0) columns += ',' + ColumnList();
    }
    return SqliteStatement(m_connection, "SELECT " + columns + " FROM " + SqlName(m_sqlTable) +
                                             " WHERE " + number + ">=? ORDER BY " + number);
}

std::unique_ptr<rfm_Cursor> SqliteTable::OpenCursor() {
    Flush();
    return InStoreTerms([&]() -> std::unique_ptr<rfm_Cursor> {
        return std::make_unique<SqliteCursor>(*this, TakeReader());
    });
}

int SqliteTable::FindRow(int intColumn, long long integer, int textColumn, cow_String const& text) {
    Flush();
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
        return row >= 0 && row <= INT_MAX ? static_cast<int>(row) : -1;
    });
}

}  // namespace nga
