// The record store against loops over SQLite's C API, written by hand for this one kind of model:
// materials with three options, fourteen rows each. The loops write and read the very same rows,
// from and into the very same objects, with the same pages, one transaction, each statement
// prepared once, and row numbers given by SQLite. Both sides sync the file that they wrote.

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "nga_Store.h"
#include "ratio.h"

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Stop(std::string const& why) {
    std::fprintf(stderr, "%s\n", why.c_str());
    std::exit(2);
}
void Check(int code, char const* what) {
    if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW) Stop(what);
}

// ---- the model -------------------------------------------------------------------------------

kmaC_MaterialContainer& Materials(ddr_Model& model) {
    return static_cast<kmaC_MaterialContainer&>(
        model.GetExtension(cow_String(ddr_Model::materialCmd())).GetValue());
}

std::unique_ptr<ddr_Model> MakeModel(int count) {
    auto model = std::make_unique<ddr_Model>(cow_String("bench"));
    for (int i = 0; i < count; ++i) {
        auto* material = new kmaC_Material;
        auto* elastic = new kmaC_Elastic;
        elastic->table = kmaC_MaterialTable(1, 2);
        elastic->table.MutableCell(0, 0) = 210e3 + i;
        elastic->table.MutableCell(0, 1) = 0.3;
        material->elastic = elastic;
        auto* density = new kmaC_Density;
        density->table = kmaC_MaterialTable(1, 1);
        density->table.MutableCell(0, 0) = 7.85e-9;
        material->density = density;
        auto* expansion = new kmaC_Expansion;
        expansion->table = kmaC_MaterialTable(1, 1);
        expansion->table.MutableCell(0, 0) = 1.2e-5;
        material->expansion = expansion;
        char name[32];
        std::snprintf(name, sizeof name, "Material-%06d", i);
        Materials(*model).Insert(cow_String(name), material);
    }
    return model;
}

// ---- by hand: what both directions need ------------------------------------------------------

struct Database {
    sqlite3* handle = nullptr;

    Database(std::string const& path, int flags) {
        Check(sqlite3_open_v2(path.c_str(), &handle, flags | SQLITE_OPEN_NOMUTEX, nullptr), "open");
    }
    ~Database() { sqlite3_close(handle); }
    void Run(std::string const& sql) const {
        Check(sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr), sql.c_str());
    }
    sqlite3_stmt* Prepare(std::string const& sql) const {
        sqlite3_stmt* statement = nullptr;
        Check(sqlite3_prepare_v3(handle, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement,
                                 nullptr),
              sql.c_str());
        return statement;
    }
};

// The layout of a file, taken from one that the store wrote.
struct Layout {
    std::vector<std::string> tableSql;
    std::vector<std::string> indexSql;
    std::map<std::string, std::vector<std::string>> columns;
    std::vector<std::string> catalogue;

    explicit Layout(std::string const& path) {
        Database const database(path, SQLITE_OPEN_READONLY);
        sqlite3_stmt* rows = database.Prepare("SELECT type,name,sql FROM sqlite_schema");
        while (sqlite3_step(rows) == SQLITE_ROW) {
            std::string const type = Text(rows, 0);
            (type == "table" ? tableSql : indexSql).push_back(Text(rows, 2));
            if (type != "table") continue;
            sqlite3_stmt* fields = database.Prepare("PRAGMA table_info(\"" + Text(rows, 1) + "\")");
            while (sqlite3_step(fields) == SQLITE_ROW)
                columns[Text(rows, 1)].push_back(Text(fields, 1));
            sqlite3_finalize(fields);
        }
        sqlite3_finalize(rows);
        rows = database.Prepare(
            "SELECT quote(TypeId)||','||quote(ClassName)||','||quote(TableName)||','||"
            "quote(Version)||','||quote(ParentTypeId) FROM nga_Catalogue");
        while (sqlite3_step(rows) == SQLITE_ROW) catalogue.push_back(Text(rows, 0));
        sqlite3_finalize(rows);
    }
    static std::string Text(sqlite3_stmt* rows, int column) {
        return reinterpret_cast<char const*>(sqlite3_column_text(rows, column));
    }
    std::string List(std::string const& table) const {
        std::string list;
        for (std::size_t i = 1; i < columns.at(table).size(); ++i)
            list += (i > 1 ? ",\"" : "\"") + columns.at(table)[i] + "\"";
        return list;
    }
    // The number of a column among those after the row number.
    int Column(std::string const& table, std::string const& name) const {
        auto const& all = columns.at(table);
        for (std::size_t i = 1; i < all.size(); ++i)
            if (all[i] == name) return static_cast<int>(i) - 1;
        Stop("no column " + name);
    }
};

// ---- saving by hand --------------------------------------------------------------------------

struct Insert {
    sqlite3_stmt* first = nullptr;
    sqlite3_stmt* next = nullptr;
    int rows = 0;

    Insert(Database const& database, Layout const& layout, std::string const& table) {
        std::string marks;
        for (std::size_t i = 1; i < layout.columns.at(table).size(); ++i)
            marks += i > 1 ? ",?" : "?";
        first = database.Prepare("INSERT INTO \"" + table + "\" VALUES(0," + marks + ")");
        next = database.Prepare("INSERT INTO \"" + table + "\"(" + layout.List(table) +
                                ") VALUES(" + marks + ")");
    }
    ~Insert() {
        sqlite3_finalize(first);
        sqlite3_finalize(next);
    }
    sqlite3_stmt* Statement() const { return rows == 0 ? first : next; }
    int Step() {
        Check(sqlite3_step(Statement()), "insert");
        sqlite3_reset(Statement());
        return rows++;
    }
};

void BindInt(sqlite3_stmt* statement, int column, long long value) {
    sqlite3_bind_int64(statement, column + 1, value);
}
void BindUid(sqlite3_stmt* statement, int column, cls_Uid const& uid,
             unsigned char (&bytes)[cls_Uid::byteCount]) {
    uid.ToBytes(bytes);
    sqlite3_bind_blob(statement, column + 1, bytes, sizeof bytes, SQLITE_STATIC);
}
void BindText(sqlite3_stmt* statement, int column, cow_String const& text) {
    sqlite3_bind_text(statement, column + 1, text.Text(), text.Length(), SQLITE_STATIC);
}
void BindLiteral(sqlite3_stmt* statement, int column, char const* text) {
    sqlite3_bind_text(statement, column + 1, text, -1, SQLITE_STATIC);
}

struct HandWriter {
    Layout const& layout;
    Insert options, lists, tables, densities, elastics, expansions, materials;
    int density, elastic, expansion, description, identifier;

    HandWriter(Database const& database, Layout const& given)
        : layout(given),
          options(database, given, "kmaC_MaterialOption"),
          lists(database, given, "cls_List"),
          tables(database, given, "kmaC_MaterialTable"),
          densities(database, given, "kmaC_Density"),
          elastics(database, given, "kmaC_Elastic"),
          expansions(database, given, "kmaC_Expansion"),
          materials(database, given, "kmaC_Material") {
        density = given.Column("kmaC_Material", "density#ClassID");
        elastic = given.Column("kmaC_Material", "elastic#ClassID");
        expansion = given.Column("kmaC_Material", "expansion#ClassID");
        description = given.Column("kmaC_Material", "description");
        identifier = given.Column("kmaC_Material", "materialIdentifier");
    }
    int Option(kmaC_MaterialOption const& option) {
        unsigned char uid[cls_Uid::byteCount];
        sqlite3_stmt* row = options.Statement();
        BindInt(row, 0, -1);
        BindUid(row, 1, option.uid, uid);
        return options.Step();
    }
    int Table(kmaC_MaterialTable const& table) {
        unsigned char uid[cls_Uid::byteCount];
        sqlite3_stmt* row = lists.Statement();
        auto const& array = table.table;
        sqlite3_bind_blob(row, 1, array.ConstGet().Data(),
                          array.Rows() * array.Columns() * static_cast<int>(sizeof(double)),
                          SQLITE_STATIC);
        BindInt(row, 1, array.Columns());
        BindInt(row, 2, cls_CollectionArray2DDouble);
        BindUid(row, 5, table.table.uid, uid);
        int const list = lists.Step();
        row = tables.Statement();
        BindInt(row, 0, cls_ListTypeId);
        BindInt(row, 1, list);
        BindInt(row, 2, table.allowEmptyFirstRow);
        BindInt(row, 3, -1);
        BindUid(row, 4, table.uid, uid);
        return tables.Step();
    }
    int Density(kmaC_Density const& object) {
        unsigned char uid[cls_Uid::byteCount];
        int const base = Option(object);
        int const table = Table(object.table);
        sqlite3_stmt* row = densities.Statement();
        BindInt(row, 0, object.temperatureDependency);
        BindInt(row, 1, object.dependencies);
        BindInt(row, 2, kmaC_MaterialTable::TypeId());
        BindInt(row, 3, table);
        BindInt(row, 4, base);
        BindUid(row, 5, object.uid, uid);
        return densities.Step();
    }
    int Elastic(kmaC_Elastic const& object) {
        unsigned char uid[cls_Uid::byteCount];
        int const base = Option(object);
        int const table = Table(object.table);
        sqlite3_stmt* row = elastics.Statement();
        BindLiteral(row, 0, object.type == kmaC_Elastic::TypeEnm::ISOTROPIC ? "ISOTROPIC" : "");
        BindInt(row, 1, object.noCompression);
        BindInt(row, 2, object.noTension);
        BindInt(row, 3, object.temperatureDependency);
        BindInt(row, 4, object.dependencies);
        BindLiteral(row, 5, object.moduli == kmaC_Elastic::ModuliEnm::LONG_TERM ? "LONG_TERM" : "");
        BindInt(row, 6, kmaC_MaterialTable::TypeId());
        BindInt(row, 7, table);
        BindInt(row, 12, base);
        BindUid(row, 13, object.uid, uid);
        return elastics.Step();
    }
    int Expansion(kmaC_Expansion const& object) {
        unsigned char uid[cls_Uid::byteCount];
        int const base = Option(object);
        int const table = Table(object.table);
        sqlite3_stmt* row = expansions.Statement();
        BindLiteral(row, 0, object.type == kmaC_Expansion::TypeEnm::ISOTROPIC ? "ISOTROPIC" : "");
        BindInt(row, 1, object.userSubroutine);
        sqlite3_bind_double(row, 3, object.zero);
        BindInt(row, 3, object.temperatureDependency);
        BindInt(row, 4, object.dependencies);
        BindInt(row, 5, kmaC_MaterialTable::TypeId());
        BindInt(row, 6, table);
        BindInt(row, 7, base);
        BindUid(row, 8, object.uid, uid);
        return expansions.Step();
    }
    int Material(kmaC_Material const& object) {
        unsigned char uid[cls_Uid::byteCount];
        int const last = identifier;
        int const first = Density(object.density.ConstGet());
        int const second = Elastic(object.elastic.ConstGet());
        int const third = Expansion(object.expansion.ConstGet());
        sqlite3_stmt* row = materials.Statement();
        BindInt(row, density, kmaC_Density::TypeId());
        BindInt(row, density + 1, first);
        BindInt(row, elastic, kmaC_Elastic::TypeId());
        BindInt(row, elastic + 1, second);
        BindInt(row, expansion, kmaC_Expansion::TypeId());
        BindInt(row, expansion + 1, third);
        BindText(row, description, object.description);
        BindText(row, identifier, object.materialIdentifier);
        BindInt(row, last + 1, -1);
        BindUid(row, last + 2, object.uid, uid);
        return materials.Step();
    }
};

void SaveByHand(ddr_Model& model, Layout const& layout, std::string const& path) {
    std::string const part = path + "-part";
    fs::remove(part);
    {
        Database const database(part, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        database.Run(
            "PRAGMA page_size=16384; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;"
            "PRAGMA locking_mode=EXCLUSIVE; PRAGMA cache_size=-65536; BEGIN;"
            "PRAGMA application_id=" +
            std::to_string(0x4E474131) + "; PRAGMA user_version=1111");
        for (std::string const& sql : layout.tableSql) database.Run(sql);
        {
            HandWriter writer(database, layout);
            kmaC_MaterialContainer const& materials = Materials(model);
            Insert entries(database, layout, "cls_MapEntry");
            std::vector<std::pair<cow_String, int>> rows;
            cow_BtreeIterator<cow_String, kmaC_MaterialContainer::Handle> position(
                materials.ConstGetMap());
            for (position.First(); !position.IsDone(); position.Next())
                rows.emplace_back(position.CurrentKey(),
                                  writer.Material(position.CurrentValue().ConstGet()));
            for (auto const& [key, oid] : rows) {
                sqlite3_stmt* row = entries.Statement();
                BindInt(row, 0, 0);
                BindText(row, 1, key);
                BindInt(row, 2, kmaC_Material::TypeId());
                BindInt(row, 3, oid);
                entries.Step();
            }
            unsigned char uid[cls_Uid::byteCount];
            Insert maps(database, layout, "cls_Map");
            sqlite3_stmt* row = maps.Statement();
            BindInt(row, 0, cls_CollectionMapString);
            BindInt(row, 1, 0);
            BindInt(row, 2, entries.rows);
            BindUid(row, 3, materials.ConstGetMap().uid, uid);
            maps.Step();
        }
        for (std::string const& row : layout.catalogue)
            database.Run("INSERT INTO nga_Catalogue VALUES(" + row + ")");
        for (std::string const& sql : layout.indexSql) database.Run(sql);
        database.Run("COMMIT");
    }
    int const file = open(part.c_str(), O_RDONLY);
    if (fsync(file) != 0) Stop("fsync");
    close(file);
    fs::rename(part, path);
}

// ---- loading by hand -------------------------------------------------------------------------

// A forward cursor; asked for another row than the next, it looks the row up.
struct Select {
    sqlite3_stmt* statement;
    int next = -1;

    Select(Database const& database, Layout const& layout, std::string const& table)
        : statement(database.Prepare("SELECT " + layout.List(table) + " FROM \"" + table +
                                     "\" WHERE \"##OID\">=? ORDER BY \"##OID\"")) {}
    ~Select() { sqlite3_finalize(statement); }
    sqlite3_stmt* Row(int oid) {
        if (oid != next) {
            sqlite3_reset(statement);
            sqlite3_bind_int(statement, 1, oid);
        }
        Check(sqlite3_step(statement), "select");
        next = oid + 1;
        return statement;
    }
};

struct HandReader {
    Select options, lists, tables, densities, elastics, expansions, materials;
    int density, elastic, expansion, description, identifier;

    HandReader(Database const& database, Layout const& given)
        : options(database, given, "kmaC_MaterialOption"),
          lists(database, given, "cls_List"),
          tables(database, given, "kmaC_MaterialTable"),
          densities(database, given, "kmaC_Density"),
          elastics(database, given, "kmaC_Elastic"),
          expansions(database, given, "kmaC_Expansion"),
          materials(database, given, "kmaC_Material") {
        density = given.Column("kmaC_Material", "density#OID");
        elastic = given.Column("kmaC_Material", "elastic#OID");
        expansion = given.Column("kmaC_Material", "expansion#OID");
        description = given.Column("kmaC_Material", "description");
        identifier = given.Column("kmaC_Material", "materialIdentifier");
    }
    static cls_Uid Uid(sqlite3_stmt* row, int column) {
        unsigned char bytes[cls_Uid::byteCount];
        std::memcpy(bytes, sqlite3_column_blob(row, column), sizeof bytes);
        return cls_Uid::FromBytes(bytes);
    }
    static cow_String Text(sqlite3_stmt* row, int column) {
        auto const* letters = reinterpret_cast<char const*>(sqlite3_column_text(row, column));
        return cow_String(letters, sqlite3_column_bytes(row, column));
    }
    void Option(int oid, kmaC_MaterialOption& option) {
        option.kmaC_MaterialOption::uid = Uid(options.Row(oid), 1);
    }
    void Table(int oid, kmaC_MaterialTable& table) {
        sqlite3_stmt* row = tables.Row(oid);
        int const list = sqlite3_column_int(row, 1);
        table.allowEmptyFirstRow = sqlite3_column_int(row, 2) != 0;
        table.uid = Uid(row, 4);
        row = lists.Row(list);
        void const* bytes = sqlite3_column_blob(row, 0);
        int const size = sqlite3_column_bytes(row, 0);
        int const columns = sqlite3_column_int(row, 1);
        cow_2DArray<double> array(size / 8 / columns, columns);
        std::memcpy(array.Get().Data(), bytes, static_cast<std::size_t>(size));
        static_cast<cow_2DArray<double>&>(table.table) = array;
        table.table.uid = Uid(row, 5);
    }
    kmaC_Density* Density(int oid) {
        auto* object = new kmaC_Density;
        sqlite3_stmt* row = densities.Row(oid);
        object->temperatureDependency = sqlite3_column_int(row, 0) != 0;
        object->dependencies = sqlite3_column_int(row, 1);
        Table(sqlite3_column_int(row, 3), object->table);
        Option(sqlite3_column_int(row, 4), *object);
        object->uid = Uid(row, 5);
        return object;
    }
    kmaC_Elastic* Elastic(int oid) {
        auto* object = new kmaC_Elastic;
        sqlite3_stmt* row = elastics.Row(oid);
        if (std::strcmp(reinterpret_cast<char const*>(sqlite3_column_text(row, 0)), "ISOTROPIC"))
            Stop("another type");
        object->noCompression = sqlite3_column_int(row, 1) != 0;
        object->noTension = sqlite3_column_int(row, 2) != 0;
        object->temperatureDependency = sqlite3_column_int(row, 3) != 0;
        object->dependencies = sqlite3_column_int(row, 4);
        if (std::strcmp(reinterpret_cast<char const*>(sqlite3_column_text(row, 5)), "LONG_TERM"))
            Stop("another kind of moduli");
        Table(sqlite3_column_int(row, 7), object->table);
        if (sqlite3_column_type(row, 9) != SQLITE_NULL ||
            sqlite3_column_type(row, 11) != SQLITE_NULL)
            Stop("a part that the hand does not know");
        Option(sqlite3_column_int(row, 12), *object);
        object->uid = Uid(row, 13);
        return object;
    }
    kmaC_Expansion* Expansion(int oid) {
        auto* object = new kmaC_Expansion;
        sqlite3_stmt* row = expansions.Row(oid);
        if (std::strcmp(reinterpret_cast<char const*>(sqlite3_column_text(row, 0)), "ISOTROPIC"))
            Stop("another type");
        object->userSubroutine = sqlite3_column_int(row, 1) != 0;
        object->zero = sqlite3_column_double(row, 2);
        object->temperatureDependency = sqlite3_column_int(row, 3) != 0;
        object->dependencies = sqlite3_column_int(row, 4);
        Table(sqlite3_column_int(row, 6), object->table);
        Option(sqlite3_column_int(row, 7), *object);
        object->uid = Uid(row, 8);
        return object;
    }
    kmaC_Material* Material(int oid) {
        auto* object = new kmaC_Material;
        sqlite3_stmt* row = materials.Row(oid);
        for (int column = 1; column < description; column += 2) {
            if (sqlite3_column_type(row, column) == SQLITE_NULL) continue;
            int const part = sqlite3_column_int(row, column);
            if (column == density)
                object->density = Density(part);
            else if (column == elastic)
                object->elastic = Elastic(part);
            else if (column == expansion)
                object->expansion = Expansion(part);
            else
                Stop("an option that the hand does not know");
        }
        object->description = Text(row, description);
        object->materialIdentifier = Text(row, identifier);
        object->uid = Uid(row, identifier + 2);
        return object;
    }
};

std::unique_ptr<ddr_Model> LoadByHand(Layout const& layout, std::string const& path) {
    auto model = std::make_unique<ddr_Model>(cow_String("bench"));
    Database const database(path, SQLITE_OPEN_READONLY);
    database.Run("BEGIN");
    HandReader reader(database, layout);
    Select entries(database, layout, "cls_MapEntry");
    Select maps(database, layout, "cls_Map");
    sqlite3_stmt* map = maps.Row(0);
    auto& tree = Materials(*model).GetMap();
    int const count = sqlite3_column_int(map, 2);
    for (int i = 0; i < count; ++i) {
        sqlite3_stmt* row = entries.Row(i);
        cow_String const key = HandReader::Text(row, 1);
        tree.InsertUnlessMember(
            key, kmaC_MaterialContainer::Handle(reader.Material(sqlite3_column_int(row, 3))));
    }
    return model;
}

kmaC_MaterialContainer::Handle ReadNamedByHand(Layout const& layout, std::string const& path,
                                               cow_String const& name) {
    Database const database(path, SQLITE_OPEN_READONLY);
    database.Run("BEGIN");
    int material = -1;
    {
        Select wrappers(database, layout, "kmaC_MCWrapper");
        Select maps(database, layout, "cls_Map");
        int const map = sqlite3_column_int(wrappers.Row(0), 1);
        if (sqlite3_column_int(maps.Row(map), 0) != cls_CollectionMapString) Stop("no map");
        sqlite3_stmt* find = database.Prepare(
            "SELECT \"value#OID\" FROM cls_MapEntry WHERE \"owner\"=? AND \"key\"=?");
        BindInt(find, 0, map);
        BindText(find, 1, name);
        if (sqlite3_step(find) == SQLITE_ROW) material = sqlite3_column_int(find, 0);
        sqlite3_finalize(find);
    }
    HandReader reader(database, layout);
    return kmaC_MaterialContainer::Handle(reader.Material(material));
}

// ---- the rows --------------------------------------------------------------------------------

bool SameRows(Layout const& layout, std::string const& a, std::string const& b) {
    Database const first(a, SQLITE_OPEN_READONLY);
    first.Run("ATTACH '" + b + "' AS other");
    for (auto const& [table, columns] : layout.columns) {
        if (table == "mdl_Extension" || table == "kmaC_MCWrapper") continue;
        std::string const name = "\"" + table + "\"";
        sqlite3_stmt* rows = first.Prepare("SELECT count(*) FROM (SELECT * FROM main." + name +
                                           " EXCEPT SELECT * FROM other." + name + "), (SELECT 1)");
        sqlite3_step(rows);
        int const differing = sqlite3_column_int(rows, 0);
        sqlite3_finalize(rows);
        rows = first.Prepare("SELECT (SELECT count(*) FROM main." + name +
                             ")=(SELECT count(*) FROM other." + name + ")");
        sqlite3_step(rows);
        bool const same = sqlite3_column_int(rows, 0) != 0;
        sqlite3_finalize(rows);
        if (differing != 0 || !same) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    int const many = argc > 1 ? std::atoi(argv[1]) : 100000;
    int const rounds = argc > 2 ? std::atoi(argv[2]) : 7;
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    std::string pattern = (fs::temp_directory_path() / "nga_bench_XXXXXX").string();
    if (!mkdtemp(pattern.data())) Stop("no folder");
    auto const file = [&pattern](char const* name) { return pattern + "/" + name; };

    nga::SaveModel(ddr_Model(cow_String("empty")), file("empty.nga"));
    auto const few = MakeModel(100);
    nga::SaveModel(*few, file("few.nga"));
    std::printf("an empty model's file: %ju bytes (at most 32768)\n",
                static_cast<std::uintmax_t>(fs::file_size(file("empty.nga"))));
    std::printf("a file of 100 materials: %ju bytes (at most 409600)\n",
                static_cast<std::uintmax_t>(fs::file_size(file("few.nga"))));
    Layout const layout(file("few.nga"));
    SaveByHand(*few, layout, file("few_by_hand.nga"));
    if (!SameRows(layout, file("few.nga"), file("few_by_hand.nga"))) Stop("other rows by hand");

    auto const model = MakeModel(many);
    ratio::Table table(rounds);
    std::string const title = std::to_string(many) + " materials";
    table.Row(
        "save " + title, 1.25,
        [&] { return ratio::Seconds([&] { nga::SaveModel(*model, file("many.nga")); }); },
        [&] { return ratio::Seconds([&] { SaveByHand(*model, layout, file("hand.nga")); }); });
    table.Row(
        "load " + title, 1.5,
        [&] {
            std::unique_ptr<ddr_Model> loaded;
            nga::Leftovers unnamed;
            return ratio::Seconds(
                [&] { loaded = nga::LoadModel(file("many.nga"), nullptr, &unnamed); });
        },
        [&] {
            std::unique_ptr<ddr_Model> loaded;
            return ratio::Seconds([&] { loaded = LoadByHand(layout, file("many.nga")); });
        });

    cow_String const repository(ddr_Model::materialCmd());
    auto const named = [&](char const* path, int size) {
        return [&, path, size] {
            return ratio::Seconds([&] {
                for (int i = 0; i < 100; ++i) {
                    char name[32];
                    std::snprintf(name, sizeof name, "Material-%06d", i * 7919 % size);
                    if (nga::ReadNamed(file(path), repository, cow_String(name),
                                       kmaC_Material::TypeId())
                            .IsNull())
                        Stop("not found");
                }
            });
        };
    };
    auto const namedByHand = [&](char const* path, int size) {
        return [&, path, size] {
            return ratio::Seconds([&] {
                for (int i = 0; i < 100; ++i) {
                    char name[32];
                    std::snprintf(name, sizeof name, "Material-%06d", i * 7919 % size);
                    ReadNamedByHand(layout, file(path), cow_String(name));
                }
            });
        };
    };
    table.Row("open and read one by name, " + title, 1.3, named("many.nga", many),
              namedByHand("many.nga", many), 100);
    table.Row("open and read one by name, 100 materials", 1.3, named("few.nga", 100),
              namedByHand("few.nga", 100), 100);
    table.Row("open and read one by name, " + title + " against 100", 2.0, named("many.nga", many),
              named("few.nga", 100), 100);

    fs::remove_all(pattern);
    DDB_NonGeometricAttributes_finalize(count);
    return table.Missed() != 0;
}
