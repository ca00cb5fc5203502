// Upgrades of databases against loops over SQLite's C API, written by hand for this one class: rows
// are read from the old file with typed columns and written to a new one, each statement prepared
// once. Both sides sync the file that they wrote. The last row is the copy of a file.

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "dbc_Upgrade.h"
#include "nga_SqliteDatabase.h"
#include "nga_Start.h"
#include "nga_Upgrade.h"
#include "ratio.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Stop(std::string const& why) {
    std::fprintf(stderr, "%s\n", why.c_str());
    std::exit(2);
}

struct Database {
    sqlite3* handle = nullptr;

    Database(std::string const& path, int flags) {
        if (sqlite3_open_v2(path.c_str(), &handle, flags | SQLITE_OPEN_NOMUTEX, nullptr) !=
            SQLITE_OK)
            Stop("open " + path);
    }
    ~Database() { sqlite3_close(handle); }
    void Run(std::string const& sql) const {
        if (sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            Stop(sql + ": " + sqlite3_errmsg(handle));
    }
    sqlite3_stmt* Prepare(std::string const& sql) const {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v3(handle, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement,
                               nullptr) != SQLITE_OK)
            Stop(sql + ": " + sqlite3_errmsg(handle));
        return statement;
    }
};

void Done(sqlite3_stmt* statement) {
    if (sqlite3_step(statement) != SQLITE_DONE) Stop("insert");
    sqlite3_reset(statement);
}

void Sync(std::string const& path) {
    int const file = open(path.c_str(), O_RDWR);
    if (file < 0 || fsync(file) != 0) Stop("sync");
    close(file);
}

char const* const asOurs =
    "PRAGMA page_size=16384;PRAGMA journal_mode=OFF;PRAGMA synchronous=OFF;"
    "PRAGMA locking_mode=EXCLUSIVE;PRAGMA cache_size=-65536;BEGIN";

fs::path Folder() {
    static fs::path const folder = [] {
        fs::path path = fs::current_path() / ("bench_upgrade." + std::to_string(getpid()));
        fs::create_directory(path);
        return path;
    }();
    return folder;
}

/// Writes the table of an old class, row by row.
template <class Fill>
void Rows(nga::SqliteDatabase& file, rfm_TableMetadata const& layout, int count, Fill fill) {
    rfm_Table& table = file.CreateTable(layout);
    std::vector<rfm_Value> values(layout.Columns().size());
    for (int i = 0; i < count; ++i) {
        fill(i, values);
        table.Append(values.data());
    }
}

cls_ClassRegistrar const& Registrar() {
    return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
}

rfm_TableMetadata OldLayout(unsigned typeId, int version) {
    for (auto const& entry : omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries()) {
        cls_ClassRegistrar own;
        entry.holder->GetRef().InitializeMetadata(own);
        if (cls_ClassMetadata const* metadata = own.Find(typeId))
            if (metadata->Version() == version) return rom_Layout::OfClass(*metadata);
    }
    Stop("no such layout");
}

std::unique_ptr<nga::SqliteDatabase> Empty(std::string const& path) {
    std::ofstream(path, std::ios::trunc);
    return nga::SqliteDatabase::Build(path);
}

rfm_Value Text(char const* text) {
    return rfm_Value::OfText(text, static_cast<int>(std::strlen(text)));
}

// A gasket's thickness behaviour: fifteen columns, and two that every class has.
std::string MakeThickness(int count) {
    std::string const path = (Folder() / "thickness.nga").string();
    auto const file = Empty(path);
    char const uid[16] = {1, 2, 3};
    Rows(*file, OldLayout(kmaC_ThicknessBehavior::TypeId(), 203), count,
         [&](int i, std::vector<rfm_Value>& row) {
             row = {rfm_Value::OfInt(i % 2),
                    rfm_Value::OfInt(i % 3),
                    Text("ELASTIC_PLASTIC"),
                    rfm_Value::OfDouble(1e-3),
                    Text("STRESS"),
                    Text("RELATIVE_SLOPE_DROP"),
                    rfm_Value::OfDouble(0.1 * i),
                    rfm_Value::OfInt(0x2380058),
                    rfm_Value::OfInt(i),
                    rfm_Value(),
                    rfm_Value(),
                    rfm_Value::OfInt(0),
                    rfm_Value::OfInt(0),
                    rfm_Value::OfInt(0x2380058),
                    rfm_Value::OfInt(i),
                    rfm_Value::OfInt(i),
                    rfm_Value::OfBytes(uid, 16)};
         });
    file->Finish();
    return path;
}

dbc_UpgradeReport Upgrade(std::string const& from, std::string const& to) {
    fs::copy_file(from, to, fs::copy_options::overwrite_existing);
    auto const size = static_cast<long long>(fs::file_size(from));
    auto const original = nga::SqliteDatabase::Open(
        from, size, [](auto const&) { return std::optional<rfm_TableMetadata>(); });
    auto const work = nga::SqliteDatabase::Continue(to, size);
    dbc_UpgradeReport report;
    {
        dbc_Upgrade upgrade(*original, *work, Registrar(),
                            omi_Singleton<dbc_OldClassRegistrar>::Instance());
        report = upgrade.Run();
    }
    work->Finish();
    Sync(to);
    return report;
}

double OurSeconds(std::string const& from) {
    std::string const to = (Folder() / "ours.nga").string();
    fs::remove(to);
    return ratio::Seconds([&] { Upgrade(from, to); });
}

double ThicknessByHand(std::string const& from) {
    std::string const to = (Folder() / "hand.nga").string();
    fs::remove(to);
    return ratio::Seconds([&] {
        {
            Database const in(from, SQLITE_OPEN_READONLY);
            Database const out(to, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
            out.Run(asOurs);
            out.Run(
                "CREATE TABLE t(\"##OID\" INTEGER PRIMARY KEY,temperatureDependency INTEGER,"
                "dependencies INTEGER,type TEXT,tensileStiffnessFactor,variableUnits TEXT,"
                "yieldOnsetMethod TEXT,yieldOnset,a INTEGER,b INTEGER,c INTEGER,d INTEGER,"
                "e INTEGER,f INTEGER,g INTEGER,h INTEGER,base INTEGER,uid BLOB)");
            sqlite3_stmt* const read = in.Prepare(
                "SELECT \"##OID\",temperatureDependency,dependencies,type,tensileStiffnessFactor,"
                "units,yieldOnsetMethod,yieldOnset,\"table#ClassID\",\"table#OID\","
                "\"contactArea#ClassID\",\"contactArea#OID\",unloadingTemperatureDependency,"
                "unloadingDependencies,\"unloadingTable#ClassID\",\"unloadingTable#OID\","
                "\"##BaseClassOID\",\"##Uid\" FROM kmaC_ThicknessBehavior ORDER BY \"##OID\"");
            sqlite3_stmt* const write =
                out.Prepare("INSERT INTO t VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
            while (sqlite3_step(read) == SQLITE_ROW) {
                for (int column : {0, 1, 2, 8, 9, 12, 13, 14, 15, 16})
                    sqlite3_bind_int64(write, column + 1, sqlite3_column_int64(read, column));
                for (int column : {3, 5, 6})
                    sqlite3_bind_text(
                        write, column + 1,
                        reinterpret_cast<char const*>(sqlite3_column_text(read, column)),
                        sqlite3_column_bytes(read, column), SQLITE_STATIC);
                for (int column : {4, 7})
                    sqlite3_bind_double(write, column + 1, sqlite3_column_double(read, column));
                for (int column : {10, 11})
                    if (sqlite3_column_type(read, column) == SQLITE_NULL)
                        sqlite3_bind_null(write, column + 1);
                    else
                        sqlite3_bind_int64(write, column + 1, sqlite3_column_int64(read, column));
                sqlite3_bind_blob(write, 18, sqlite3_column_blob(read, 17),
                                  sqlite3_column_bytes(read, 17), SQLITE_STATIC);
                Done(write);
            }
            sqlite3_finalize(read);
            sqlite3_finalize(write);
            out.Run("COMMIT");
        }
        Sync(to);
    });
}

constexpr int arrayColumns = 4, arrayRows = 25;

// Plasticity with a table of 800 bytes each, which its step widens by a column.
std::string MakePlastic(int count) {
    std::string const path = (Folder() / "plastic.nga").string();
    auto const file = Empty(path);
    std::vector<double> cells(arrayColumns * arrayRows, 1.5);
    char const uid[16] = {1, 2, 3};
    Rows(*file, rom_Layout::OfList(), count, [&](int, std::vector<rfm_Value>& row) {
        row = {rfm_Value::OfBytes(cells.data(), static_cast<int>(cells.size() * sizeof(double))),
               rfm_Value::OfInt(arrayColumns),
               rfm_Value::OfInt(82),
               rfm_Value(),
               rfm_Value(),
               rfm_Value::OfBytes(uid, 16)};
    });
    Rows(*file, rom_Layout::OfType(kmaC_MaterialTable::TypeId(), Registrar()), count,
         [&](int i, std::vector<rfm_Value>& row) {
             row = {rfm_Value::OfInt(cls_ListTypeId), rfm_Value::OfInt(i), rfm_Value::OfInt(0),
                    rfm_Value::OfInt(-1), rfm_Value::OfBytes(uid, 16)};
         });
    rfm_TableMetadata const layout = OldLayout(kmaC_Plastic::TypeId(), 419);
    auto const at = [&](char const* name) {
        return static_cast<std::size_t>(layout.Find(cow_String(name)));
    };
    Rows(*file, layout, count, [&](int i, std::vector<rfm_Value>& row) {
        row[at("hardening")] = Text("COMBINED");
        row[at("dataType")] = Text("PARAMETERS");
        row[at("gamma")] = rfm_Value::OfDouble(2.5);
        row[at("table#ClassID")] = rfm_Value::OfInt(kmaC_MaterialTable::TypeId());
        row[at("table#OID")] = rfm_Value::OfInt(i);
        row[at("##BaseClassOID")] = rfm_Value::OfInt(i);
        row[at("##Uid")] = rfm_Value::OfBytes(uid, 16);
        for (char const* zero :
             {"rate", "strainRangeDependency", "temperatureDependency", "dependencies"})
            row[at(zero)] = rfm_Value::OfInt(0);
    });
    file->Finish();
    return path;
}

double PlasticByHand(std::string const& from) {
    std::string const to = (Folder() / "hand.nga").string();
    fs::remove(to);
    return ratio::Seconds([&] {
        fs::copy_file(from, to);
        {
            Database const in(from, SQLITE_OPEN_READONLY);
            Database const out(to, SQLITE_OPEN_READWRITE);
            out.Run(asOurs);
            std::vector<std::string> const names = {"hardening",
                                                    "rate",
                                                    "dataType",
                                                    "strainRangeDependency",
                                                    "temperatureDependency",
                                                    "dependencies",
                                                    "\"table#ClassID\"",
                                                    "\"table#OID\"",
                                                    "\"rateDependent#ClassID\"",
                                                    "\"rateDependent#OID\"",
                                                    "\"potential#ClassID\"",
                                                    "\"potential#OID\"",
                                                    "\"cyclicHardening#ClassID\"",
                                                    "\"cyclicHardening#OID\"",
                                                    "\"ornl#ClassID\"",
                                                    "\"ornl#OID\"",
                                                    "\"cycledPlastic#ClassID\"",
                                                    "\"cycledPlastic#OID\"",
                                                    "\"annealTemperature#ClassID\"",
                                                    "\"annealTemperature#OID\"",
                                                    "\"##BaseClassOID\"",
                                                    "\"##Uid\""};
            std::string list, places = "?,?";
            for (std::string const& name : names) {
                list += "," + name;
                places += ",?";
            }
            out.Run("CREATE TABLE t(\"##OID\" INTEGER PRIMARY KEY,numBackstresses INTEGER" + list +
                    ")");
            sqlite3_stmt* const plastic = in.Prepare("SELECT \"##OID\",gamma" + list +
                                                     " FROM kmaC_Plastic ORDER BY \"##OID\"");
            sqlite3_stmt* const table =
                in.Prepare("SELECT \"table#OID\" FROM kmaC_MaterialTable WHERE \"##OID\"=?");
            sqlite3_stmt* const array = in.Prepare(
                "SELECT \"Target#Handle\",\"Target#Columns\" FROM cls_List WHERE \"##OID\"=?");
            sqlite3_stmt* const insert = out.Prepare("INSERT INTO t VALUES(" + places + ")");
            sqlite3_stmt* const append = out.Prepare(
                "INSERT INTO cls_List(\"Target#Handle\",\"Target#Columns\",\"Target#Kind\","
                "\"##Uid\") VALUES(?,?,82,?)");
            sqlite3_stmt* const update =
                out.Prepare("UPDATE kmaC_MaterialTable SET \"table#OID\"=? WHERE \"##OID\"=?");
            std::vector<double> old, wider;
            while (sqlite3_step(plastic) == SQLITE_ROW) {
                double const gamma = sqlite3_column_double(plastic, 1);
                long long const tableOid = sqlite3_column_int64(plastic, 9);
                sqlite3_bind_int64(table, 1, tableOid);
                sqlite3_step(table);
                sqlite3_bind_int64(array, 1, sqlite3_column_int64(table, 0));
                sqlite3_reset(table);
                sqlite3_step(array);
                int const bytes = sqlite3_column_bytes(array, 0);
                int const columns = sqlite3_column_int(array, 1);
                old.resize(static_cast<std::size_t>(bytes) / sizeof(double));
                std::memcpy(old.data(), sqlite3_column_blob(array, 0),
                            static_cast<std::size_t>(bytes));
                sqlite3_reset(array);
                wider.clear();
                for (std::size_t i = 0; i < old.size(); ++i) {
                    wider.push_back(old[i]);
                    if (i % static_cast<std::size_t>(columns) == 1) wider.push_back(gamma);
                }
                sqlite3_bind_blob(append, 1, wider.data(),
                                  static_cast<int>(wider.size() * sizeof(double)), SQLITE_STATIC);
                sqlite3_bind_int(append, 2, columns + 1);
                sqlite3_bind_blob(append, 3, "0123456789abcdef", 16, SQLITE_STATIC);
                Done(append);
                sqlite3_bind_int64(update, 1, sqlite3_last_insert_rowid(out.handle));
                sqlite3_bind_int64(update, 2, tableOid);
                Done(update);
                sqlite3_bind_int64(insert, 1, sqlite3_column_int64(plastic, 0));
                sqlite3_bind_int(insert, 2, 1);
                for (int column = 2; column < 24; ++column)
                    sqlite3_bind_value(insert, column + 1, sqlite3_column_value(plastic, column));
                Done(insert);
            }
            for (sqlite3_stmt* each : {plastic, table, array, insert, append, update})
                sqlite3_finalize(each);
            out.Run("DROP TABLE kmaC_Plastic;COMMIT");
        }
        Sync(to);
    });
}

// Material tables are the same in every schema.
std::string MakeUntouched(int count) {
    std::string const path = (Folder() / "untouched.nga").string();
    auto const file = Empty(path);
    std::vector<double> cells(100, 1.5);
    Rows(*file, rom_Layout::OfList(), count, [&](int, std::vector<rfm_Value>& row) {
        row = {rfm_Value::OfBytes(cells.data(), 800),
               rfm_Value::OfInt(4),
               rfm_Value::OfInt(82),
               rfm_Value(),
               rfm_Value(),
               rfm_Value()};
    });
    file->Finish();
    return path;
}

// Named materials, each with a density: what the tool looks at one by one after the steps.
std::string MakeNamed(int count) {
    std::string const path = (Folder() / "named.nga").string();
    {
        auto const file = Empty(path);
        std::uint64_t uid[2] = {0, 7};
        auto const identity = [&] {
            ++uid[0];
            return rfm_Value::OfBytes(uid, sizeof uid);
        };
        Rows(*file, rom_Layout::OfClass(*Registrar().Find(kmaC_MaterialOption::TypeId())), count,
             [&](int, std::vector<rfm_Value>& row) {
                 row = {rfm_Value::OfInt(-1), identity()};
             });
        rfm_TableMetadata const density =
            rom_Layout::OfClass(*Registrar().Find(kmaC_Density::TypeId()));
        Rows(*file, density, count, [&](int i, std::vector<rfm_Value>& row) {
            row[static_cast<std::size_t>(density.Find("##BaseClassOID"))] = rfm_Value::OfInt(i);
            row[static_cast<std::size_t>(density.Find("##Uid"))] = identity();
        });
        rfm_TableMetadata const material = OldLayout(kmaC_Material::TypeId(), 869);
        Rows(*file, material, count, [&](int i, std::vector<rfm_Value>& row) {
            row[static_cast<std::size_t>(material.Find("density#ClassID"))] =
                rfm_Value::OfInt(kmaC_Density::TypeId());
            row[static_cast<std::size_t>(material.Find("density#OID"))] = rfm_Value::OfInt(i);
            row[static_cast<std::size_t>(material.Find("##BaseClassOID"))] = rfm_Value::OfInt(-1);
            row[static_cast<std::size_t>(material.Find("##Uid"))] = identity();
        });
        Rows(*file, rom_Layout::OfMap(), 1, [&](int, std::vector<rfm_Value>& row) {
            row = {rfm_Value::OfInt(cls_CollectionMapString), rfm_Value::OfInt(0),
                   rfm_Value::OfInt(count), identity()};
        });
        std::string name;
        Rows(*file, rom_Layout::OfMapEntry(), count, [&](int i, std::vector<rfm_Value>& row) {
            name = "m" + std::to_string(i);
            row = {rfm_Value::OfInt(0), Text(name.c_str()),
                   rfm_Value::OfInt(kmaC_Material::TypeId()), rfm_Value::OfInt(i), rfm_Value()};
        });
        Rows(*file, rom_Layout::OfClass(*Registrar().Find(kmaC_MCWrapper::TypeId())), 1,
             [&](int, std::vector<rfm_Value>& row) {
                 row = {rfm_Value::OfInt(cls_MapTypeId), rfm_Value::OfInt(0), rfm_Value::OfInt(-1),
                        identity()};
             });
        file->Finish();
    }
    Database const file(path, SQLITE_OPEN_READWRITE);
    file.Run("PRAGMA user_version=869;UPDATE nga_Catalogue SET Version=869 WHERE TypeId=0");
    return path;
}

double CopySeconds(std::string const& from) {
    std::string const to = (Folder() / "copy.nga").string();
    fs::remove(to);
    return ratio::Seconds([&] {
        fs::copy_file(from, to);
        Sync(to);
    });
}

// The peak of memory of work done in a process of its own.
template <class Work>
long PeakKilobytes(Work work) {
    pid_t const child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    rusage usage;
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) Stop("child");
    return usage.ru_maxrss;
}

}  // namespace

int main() {
    nga::Start();
    for (int rows : {10'000, 100'000, 1'000'000}) {
        std::string const path = (Folder() / "thickness.nga").string();
        PeakKilobytes([&] { MakeThickness(rows); });
        long const peak = PeakKilobytes([&] { Upgrade(path, (Folder() / "ours.nga").string()); });
        std::printf("peak of memory of a step over %7d rows: %ld kB\n", rows, peak);
    }
    for (int rows : {10'000, 100'000, 1'000'000}) {
        std::string const path = (Folder() / "named.nga").string();
        PeakKilobytes([&] { MakeNamed(rows); });
        long const peak = PeakKilobytes([&] {
            nga::UpgradeFileOptions options;
            options.output = (Folder() / "upgraded.nga").string();
            nga::UpgradeOutcome const outcome = nga::Upgrade(path, options);
            if (!outcome.unreadable.empty() || outcome.findings.size() != 0) Stop("findings");
        });
        fs::remove(Folder() / "upgraded.nga");
        std::printf("peak of memory of the tool over %7d materials: %ld kB\n", rows, peak);
    }
    ratio::Table table(7);
    std::string const thickness = MakeThickness(100'000);
    table.Row(
        "a step over 100,000 rows of 15 columns", 1.6, [&] { return OurSeconds(thickness); },
        [&] { return ThicknessByHand(thickness); });
    std::string const plastic = MakePlastic(100'000);
    table.Row(
        "the same with an array of 800 bytes rewritten in each row", 1.25,
        [&] { return OurSeconds(plastic); }, [&] { return PlasticByHand(plastic); });
    std::string const untouched = MakeUntouched(200'000);
    table.Row(
        "tables that no step touches, against a copy", 1.2, [&] { return OurSeconds(untouched); },
        [&] { return CopySeconds(untouched); });
    fs::remove_all(Folder());
    return table.Missed() ? 1 : 0;
}
