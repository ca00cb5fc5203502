#include "nga_Sqlite.h"

#include <sqlite3.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace nga {

namespace {

// The machine reports each time it has run so many steps.
constexpr int stepsPerTick = 10000;

[[noreturn]] void Raise(sqlite3* database, int code) {
    if ((code & 0xff) == SQLITE_NOMEM) throw std::bad_alloc();
    std::string text;
    switch (code & 0xff) {
        case SQLITE_CORRUPT:
            text = "the database is damaged";
            break;
        case SQLITE_NOTADB:
            text = "this is no database";
            break;
        case SQLITE_FULL:
            text = "the disk is full";
            break;
        case SQLITE_BUSY:
            text = "another process has locked the database";
            break;
        case SQLITE_INTERRUPT:
            text = "the database is damaged: reading it takes no end";
            break;
        case SQLITE_TOOBIG:
            text = "the database is damaged: a value is too large";
            break;
        case SQLITE_CANTOPEN:
            text = "the database cannot be opened";
            break;
        case SQLITE_IOERR:
            text = "reading or writing the database failed";
            break;
        default:
            text = "the database failed";
            break;
    }
    if (database && (code & 0xff) != SQLITE_INTERRUPT)
        text += std::string(" (SQLite: ") + sqlite3_errmsg(database) + ")";
    int const system = database ? sqlite3_system_errno(database) : 0;
    bool const ofSystem = (code & 0xff) == SQLITE_FULL || (code & 0xff) == SQLITE_CANTOPEN ||
                          (code & 0xff) == SQLITE_IOERR;
    if (ofSystem && system != 0) text += std::string(": ") + std::strerror(system);
    throw SqliteError(code, text);
}

void Check(sqlite3* database, int code) {
    if (code != SQLITE_OK) Raise(database, code);
}

void NanToBytes(double value, unsigned char (&bytes)[nanByteCount]) {
    std::uint64_t const bits = std::bit_cast<std::uint64_t>(value);
    for (int i = 0; i < nanByteCount; ++i) bytes[i] = static_cast<unsigned char>(bits >> (8 * i));
}

}  // namespace

double NanFromBytes(void const* bytes) {
    auto const* octets = static_cast<unsigned char const*>(bytes);
    std::uint64_t bits = 0;
    for (int i = nanByteCount; i-- > 0;) bits = bits << 8 | octets[i];
    return std::bit_cast<double>(bits);
}

void SqliteConnection::Open(std::string const& path, int flags) {
    // A relative path gets a folder, so that no name is taken for one of SQLite's special ones.
    std::string const plain = path.empty() || path[0] != '/' ? "./" + path : path;
    int const code =
        sqlite3_open_v2(plain.c_str(), &m_database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK)
        Raise(m_database, m_database ? sqlite3_extended_errcode(m_database) : code);
    sqlite3_extended_result_codes(m_database, 1);
}

void SqliteConnection::OpenForReading(std::string const& path) { Open(path, SQLITE_OPEN_READONLY); }

void SqliteConnection::OpenForWriting(std::string const& path) {
    Open(path, SQLITE_OPEN_READWRITE);
}

void SqliteConnection::Close() noexcept {
    // The form that waits for statements: a statement left over must not leak the connection.
    if (m_database) sqlite3_close_v2(m_database);
    m_database = nullptr;
}

void SqliteConnection::Execute(std::string const& sql) {
    Check(m_database, sqlite3_exec(m_database, sql.c_str(), nullptr, nullptr, nullptr));
}

void SqliteConnection::Harden(long long length, bool altering) {
    static constexpr int switches[][2] = {
        {SQLITE_DBCONFIG_DEFENSIVE, 1},
        {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
        {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
        {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
        {SQLITE_DBCONFIG_DQS_DML, 0},
        {SQLITE_DBCONFIG_DQS_DDL, 0},
        {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    };
    for (auto const& [option, value] : switches)
        Check(m_database, sqlite3_db_config(m_database, option, value, nullptr));
    int const most = static_cast<int>(
        std::min<long long>(length, sqlite3_limit(m_database, SQLITE_LIMIT_LENGTH, -1)));
    int const limits[][2] = {
        {SQLITE_LIMIT_LENGTH, most},
        {SQLITE_LIMIT_SQL_LENGTH, 1 << 20},
        {SQLITE_LIMIT_COLUMN, 2000},
        {SQLITE_LIMIT_EXPR_DEPTH, 50},
        {SQLITE_LIMIT_COMPOUND_SELECT, 2},
        {SQLITE_LIMIT_VDBE_OP, 100000},
        {SQLITE_LIMIT_VARIABLE_NUMBER, 2000},
        {SQLITE_LIMIT_ATTACHED, altering ? 1 : 0},
        {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
        {SQLITE_LIMIT_WORKER_THREADS, 0},
        {SQLITE_LIMIT_FUNCTION_ARG, altering ? 16 : 8},
        {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, altering ? 64 : 0},
    };
    for (auto const& [limit, value] : limits) sqlite3_limit(m_database, limit, value);
    sqlite3_int64 mapped = 0;
    Check(m_database, sqlite3_file_control(m_database, "main", SQLITE_FCNTL_MMAP_SIZE, &mapped));
    Execute("PRAGMA cell_size_check=ON");
}

int SqliteConnection::CountWork(void* connection) noexcept {
    return --static_cast<SqliteConnection*>(connection)->m_ticksLeft < 0;
}

void SqliteConnection::LimitWork(long long steps) {
    m_ticksLeft = steps / stepsPerTick + 1;
    sqlite3_progress_handler(m_database, stepsPerTick, CountWork, this);
}

SqliteStatement::SqliteStatement(SqliteConnection const& connection, std::string const& sql) {
    Check(connection.Get(),
          sqlite3_prepare_v3(connection.Get(), sql.data(), static_cast<int>(sql.size()),
                             SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr));
    if (!m_statement) throw SqliteError(SQLITE_ERROR, "an empty statement");
}

SqliteStatement::~SqliteStatement() { sqlite3_finalize(m_statement); }

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : m_statement(std::exchange(other.m_statement, nullptr)) {}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept {
    std::swap(m_statement, other.m_statement);
    return *this;
}

void SqliteStatement::Fail(int code) {
    sqlite3* const database = sqlite3_db_handle(m_statement);
    try {
        Raise(database, code);
    } catch (...) {
        sqlite3_reset(m_statement);
        throw;
    }
}

void SqliteStatement::Bind(int parameter, rfm_Value const& value) {
    int const place = parameter + 1;
    int code = SQLITE_OK;
    switch (value.tag) {
        case rfm_Value::Null:
            code = sqlite3_bind_null(m_statement, place);
            break;
        case rfm_Value::Int:
            code = sqlite3_bind_int64(m_statement, place, value.integer);
            break;
        case rfm_Value::Double:
            if (std::isnan(value.real)) {
                unsigned char bytes[nanByteCount];
                NanToBytes(value.real, bytes);
                code = sqlite3_bind_blob(m_statement, place, bytes, nanByteCount, SQLITE_TRANSIENT);
            } else {
                code = sqlite3_bind_double(m_statement, place, value.real);
            }
            break;
        case rfm_Value::Text:
            // No text and no bytes still are values, which a null pointer would not be.
            code = sqlite3_bind_text(m_statement, place, value.length ? value.text : "",
                                     value.length, SQLITE_STATIC);
            break;
        case rfm_Value::Bytes:
            code = sqlite3_bind_blob(m_statement, place, value.length ? value.bytes : "",
                                     value.length, SQLITE_STATIC);
            break;
    }
    if (code != SQLITE_OK) Fail(code);
}

void SqliteStatement::BindInt(int parameter, long long value) {
    int const code = sqlite3_bind_int64(m_statement, parameter + 1, value);
    if (code != SQLITE_OK) Fail(code);
}

void SqliteStatement::BindNull(int parameter) {
    int const code = sqlite3_bind_null(m_statement, parameter + 1);
    if (code != SQLITE_OK) Fail(code);
}

bool SqliteStatement::Step() {
    int const code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) Fail(code);
    return false;
}

void SqliteStatement::Reset() noexcept { sqlite3_reset(m_statement); }

void SqliteStatement::Run() {
    int const code = sqlite3_step(m_statement);
    if (code != SQLITE_DONE && code != SQLITE_ROW) Fail(code);
    sqlite3_reset(m_statement);
}

rfm_Value SqliteStatement::Column(int column) const {
    sqlite3_value* const value = sqlite3_column_value(m_statement, column);
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return rfm_Value::OfInt(sqlite3_value_int64(value));
        case SQLITE_FLOAT:
            return rfm_Value::OfDouble(sqlite3_value_double(value));
        case SQLITE_TEXT: {
            auto const* letters = reinterpret_cast<char const*>(sqlite3_value_text(value));
            if (!letters) throw std::bad_alloc();
            return rfm_Value::OfText(letters, sqlite3_value_bytes(value));
        }
        case SQLITE_BLOB: {
            void const* bytes = sqlite3_value_blob(value);
            int const length = sqlite3_value_bytes(value);
            if (!bytes && length > 0) throw std::bad_alloc();
            return rfm_Value::OfBytes(bytes ? bytes : "", length);
        }
        default:
            return rfm_Value();
    }
}

long long SqliteStatement::Int(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

std::string SqliteStatement::Text(int column) const {
    rfm_Value const value = Column(column);
    if (value.tag != rfm_Value::Text) return std::string();
    return std::string(value.text, static_cast<std::size_t>(value.length));
}

void AppendSqlName(std::string& sql, std::string_view name) {
    sql += '"';
    for (std::size_t quote; (quote = name.find('"')) != name.npos; name.remove_prefix(quote + 1)) {
        sql += name.substr(0, quote);
        sql += "\"\"";
    }
    sql += name;
    sql += '"';
}

std::string SqlName(std::string_view name) {
    std::string result;
    AppendSqlName(result, name);
    return result;
}

}  // namespace nga
