// Whatever stands in an old database, its upgrade gives a database of today or one clear error, and
// leaves the old file as it is. The input says which of the hand-written old databases to take and
// what to change in it: cells, by table, row and column, so that conversions meet what they do not
// expect; or bytes, past all form.

#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "nga_Document.h"
#include "nga_Error.h"
#include "nga_Start.h"
#include "nga_StoreError.h"
#include "nga_Upgrade.h"

namespace {

constexpr char const* examples[] = {"old_203.sql", "old_453.sql", "old_507.sql"};
/// What a changed cell can hold beside a small number.
constexpr char const* values[] = {"NULL",     "-1",      "2147483647", "-2147483648",
                                  "1e308",    "''",      "0x99",       "'COMBINED'",
                                  "'NUMBER'", "'GUMMY'", "x'00'",      "x'0102030405060708'",
                                  "0.5",      "'a''b'",  "9000000000", "4294967295"};
constexpr std::size_t bytesOfChange = 5;

std::string Contents(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

bool Run(sqlite3* database, std::string const& sql) {
    return sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

/// One old database: its file, and the names of its tables with their columns.
struct Example {
    struct Table {
        std::string name;
        std::vector<std::string> columns;
    };
    std::string bytes;
    std::vector<Table> tables;
};

std::vector<std::string> FirstColumn(sqlite3* database, std::string const& sql) {
    std::vector<std::string> result;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        std::abort();
    while (sqlite3_step(statement) == SQLITE_ROW)
        result.emplace_back(reinterpret_cast<char const*>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    return result;
}

struct World {
    World() {
        nga::Start();
        std::string pattern = "/dev/shm/nga_fuzz_XXXXXX";
        if (!std::filesystem::is_directory("/dev/shm")) pattern = "/tmp/nga_fuzz_XXXXXX";
        if (!mkdtemp(pattern.data())) std::abort();
        folder = pattern;
        path = folder + "/input.nga";
        output = folder + "/output.nga";
        for (char const* name : examples) {
            Example& example = made.emplace_back();
            std::filesystem::remove(path);
            sqlite3* database = nullptr;
            if (sqlite3_open(path.c_str(), &database) != SQLITE_OK) std::abort();
            if (!Run(database, Contents(std::string(NGA_EXAMPLES) + "/" + name))) std::abort();
            for (std::string const& table : FirstColumn(
                     database, "SELECT name FROM sqlite_schema WHERE type='table' ORDER BY name"))
                example.tables.push_back(
                    {table,
                     FirstColumn(database, "SELECT name FROM pragma_table_info('" + table + "')")});
            sqlite3_close(database);
            example.bytes = Contents(path);
        }
    }
    ~World() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    std::string folder, path, output;
    std::vector<Example> made;
};

void ChangeBytes(std::string& bytes, std::uint8_t const* changes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i, changes += bytesOfChange) {
        std::size_t const place =
            (std::size_t{changes[0]} << 16 | changes[1] << 8 | changes[2]) % bytes.size();
        bytes[place] = static_cast<char>(changes[3]);
        if (changes[4] & 1 && place + 1 < bytes.size())
            bytes[place + 1] = static_cast<char>(changes[4]);
    }
}

void ChangeCells(std::string const& path, Example const& example, std::uint8_t const* changes,
                 std::size_t count) {
    sqlite3* database = nullptr;
    if (sqlite3_open(path.c_str(), &database) != SQLITE_OK) std::abort();
    Run(database, "BEGIN");
    for (std::size_t i = 0; i < count; ++i, changes += bytesOfChange) {
        Example::Table const& table = example.tables[changes[0] % example.tables.size()];
        std::string const& column = table.columns[changes[1] % table.columns.size()];
        std::string const value = changes[3] & 1 ? values[changes[4] % std::size(values)]
                                                 : std::to_string(static_cast<int>(changes[4]) - 4);
        // A row of the catalogue is known by its place, others by their number.
        Run(database, "UPDATE \"" + table.name + "\" SET \"" + column + "\"=" + value +
                          " WHERE rowid IN (SELECT rowid FROM \"" + table.name +
                          "\" ORDER BY rowid LIMIT 1 OFFSET " + std::to_string(changes[2] % 8) +
                          ")");
    }
    Run(database, "COMMIT");
    sqlite3_close(database);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static World const world;
    if (size == 0) return 0;
    Example const& example = world.made[data[0] / 2 % world.made.size()];
    std::size_t const changes = (size - 1) / bytesOfChange;
    std::string bytes = example.bytes;
    bool const byCells = data[0] & 1;
    if (!byCells) ChangeBytes(bytes, data + 1, changes);
    std::ofstream(world.path, std::ios::binary | std::ios::trunc) << bytes;
    if (byCells) {
        ChangeCells(world.path, example, data + 1, changes);
        bytes = Contents(world.path);
    }
    std::error_code ignored;
    std::filesystem::remove(world.output, ignored);
    try {
        nga::UpgradeFileOptions options;
        options.output = world.output;
        nga::UpgradeOutcome const outcome = nga::Upgrade(world.path, options);
        if (nga::UpgradeText(outcome).empty() || nga::UpgradeJson(outcome).empty()) std::abort();
        // What the account has nothing against can be opened.
        if (outcome.unreadable.empty()) nga::Document::Open(world.output);
    } catch (nga::StoreError const& error) {
        // The file and a cause, and no half of a result.
        if (error.Cause().empty() || error.Path() != world.path ||
            std::filesystem::exists(world.output)) {
            std::fprintf(stderr, "%s\n", error.what());
            std::abort();
        }
    }
    if (Contents(world.path) != bytes) std::abort();
    return 0;
}
