#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "rfm_Value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace nga {

/// A failure of SQLite, in words for people. Exhausted memory is raised as std::bad_alloc instead.
class SqliteError : public std::runtime_error {
public:
    SqliteError(int code, std::string const& text) : std::runtime_error(text), m_code(code) {}
    /// The extended result code.
    int Code() const { return m_code; }

private:
    int m_code;
};

/// One open database file. It must outlive its statements.
class SqliteConnection {
public:
    SqliteConnection() = default;
    ~SqliteConnection() { Close(); }
    SqliteConnection(SqliteConnection const&) = delete;
    SqliteConnection& operator=(SqliteConnection const&) = delete;

    /// The file is there; neither call makes one.
    void OpenForReading(std::string const& path);
    void OpenForWriting(std::string const& path);
    void Close() noexcept;

    void Execute(std::string const& sql);
    /// Shuts off whatever a hostile file could make SQLite do. \p length bounds every single text
    /// and blob, and every statement that the file holds. \p altering leaves what renaming a table
    /// takes.
    void Harden(long long length, bool altering = false);
    /// Ends every later statement with a failure once all together have run so many steps of
    /// SQLite's machine: a damaged file must not keep a reader for ever.
    void LimitWork(long long steps);

    sqlite3* Get() const { return m_database; }

private:
    static int CountWork(void* connection) noexcept;
    void Open(std::string const& path, int flags);

    sqlite3* m_database = nullptr;
    long long m_ticksLeft = 0;
};

/// One prepared statement. Parameters and columns count from 0.
class SqliteStatement {
public:
    SqliteStatement() = default;
    SqliteStatement(SqliteConnection const& connection, std::string const& sql);
    ~SqliteStatement();
    SqliteStatement(SqliteStatement&& other) noexcept;
    SqliteStatement& operator=(SqliteStatement&& other) noexcept;

    explicit operator bool() const { return m_statement != nullptr; }

    /// What the value's text or bytes refer to must stay until the statement is bound anew.
    void Bind(int parameter, rfm_Value const& value);
    void BindInt(int parameter, long long value);
    void BindNull(int parameter);
    /// True while there is a row. A failure resets the statement before it raises.
    bool Step();
    void Reset() noexcept;
    /// Runs a statement that gives no rows, and makes it ready to run again.
    void Run();

    /// As it is stored; texts and bytes are good until the next Step or Reset. No value comes with
    /// a null pointer but Null.
    rfm_Value Column(int column) const;
    long long Int(int column) const;
    std::string Text(int column) const;

private:
    [[noreturn]] void Fail(int code);

    sqlite3_stmt* m_statement = nullptr;
};

/// A NaN's bits stand in a blob of eight bytes, least significant first, since SQLite would store
/// the number as no value.
inline constexpr int nanByteCount = 8;
double NanFromBytes(void const* bytes);

/// A name as SQL writes it.
std::string SqlName(std::string_view name);
void AppendSqlName(std::string& sql, std::string_view name);

}  // namespace nga
