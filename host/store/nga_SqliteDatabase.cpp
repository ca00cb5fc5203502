#include "nga_SqliteDatabase.h"

#include <algorithm>
#include <climits>
#include <set>

#include "nex_TextException.h"
#include "nga_SqliteTable.h"
#include "rom_Transporter.h"

namespace nga {

namespace {

constexpr char const* catalogueName = "nga_Catalogue";
constexpr char const* catalogueSql =
    "CREATE TABLE nga_Catalogue(\n"
    "  TypeId INTEGER PRIMARY KEY,\n"
    "  ClassName TEXT NOT NULL,\n"
    "  TableName TEXT NOT NULL,\n"
    "  Version INTEGER NOT NULL,\n"
    "  ParentTypeId INTEGER NOT NULL\n"
    ")";
// The row that names no class but the program that wrote the file.
constexpr int writerTypeId = 0;
constexpr char const* writerName = "nga 0.1.0";

// More work than reading every byte of a file in the worst order takes, and yet an end.
constexpr long long stepsPerByte = 64;
constexpr long long stepsAtLeast = 20'000'000;
constexpr long long lengthAtLeast = 1 << 20;
constexpr std::size_t classesAtMost = 10000;

// SQLite compares the names of tables so.
std::string Folded(std::string name) {
    for (char& letter : name)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return name;
}

char const* DeclaredType(rfm_ColumnKind kind) {
    switch (kind) {
        case rfm_ColumnKind::Int:
            return " INTEGER";
        // No type: with one, SQLite would store whole numbers as integers and lose the sign of -0.
        case rfm_ColumnKind::Double:
            return "";
        case rfm_ColumnKind::Text:
            return " TEXT";
        case rfm_ColumnKind::Bytes:
            return " BLOB";
        // Converts nothing, like BLOB, and yet can be told from it.
        case rfm_ColumnKind::Key:
            return " KEYBLOB";
    }
    return "";
}

std::optional<rfm_ColumnKind> KindOf(std::string const& declaredType) {
    using enum rfm_ColumnKind;
    for (rfm_ColumnKind const kind : {Int, Double, Text, Bytes, Key}) {
        std::string const type = DeclaredType(kind);
        if (declaredType == (type.empty() ? type : type.substr(1))) return kind;
    }
    return std::nullopt;
}

std::string TableSql(rfm_TableMetadata const& metadata, std::string const& tableName) {
    std::string sql = "CREATE TABLE " + SqlName(tableName) + "(\n  " + SqlName(rowNumberColumn) +
                      " INTEGER PRIMARY KEY";
    for (rfm_Column const& column : metadata.Columns()) {
        sql += ",\n  ";
        AppendSqlName(sql, column.name.View());
        sql += DeclaredType(column.kind);
    }
    return sql + "\n)";
}

}  // namespace

void RaiseStore(std::string const& cause, int line) {
    nex_TextException(atr_String(cause.c_str())).Throw("host/store/nga_SqliteDatabase", line);
}

SqliteDatabase::SqliteDatabase() = default;
SqliteDatabase::~SqliteDatabase() = default;

std::unique_ptr<SqliteDatabase> SqliteDatabase::Build(std::string const& path) {
    std::unique_ptr<SqliteDatabase> result(new SqliteDatabase);
    InStoreTerms([&] { result->StartBuild(path); });
    return result;
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::Open(std::string const& path, long long fileSize,
                                                     LayoutOf layoutOf) {
    std::unique_ptr<SqliteDatabase> result(new SqliteDatabase);
    result->m_layoutOf = std::move(layoutOf);
    InStoreTerms([&] { result->StartRead(path, fileSize); });
    return result;
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::Continue(std::string const& path,
                                                         long long fileSize) {
    std::unique_ptr<SqliteDatabase> result(new SqliteDatabase);
    result->m_layoutOf = LayoutOfCollection;
    InStoreTerms([&] { result->StartContinue(path, fileSize); });
    return result;
}

std::optional<rfm_TableMetadata> SqliteDatabase::LayoutOfCollection(CatalogueEntry const& entry) {
    for (rfm_TableMetadata const& layout : {rom_Layout::OfList(), rom_Layout::OfMap(),
                                            rom_Layout::OfListEntry(), rom_Layout::OfMapEntry()})
        if (layout.TypeId() == entry.typeId && layout.Version() == entry.version) return layout;
    return std::nullopt;
}

// The file is nobody else's until it is complete, so nothing protects it on the way there.
void SqliteDatabase::StartBuild(std::string const& path) {
    m_building = true;
    m_connection.OpenForWriting(path);
    m_connection.Execute("PRAGMA page_size=" + std::to_string(storePageSize) +
                         "; PRAGMA encoding='UTF-8'; PRAGMA journal_mode=OFF;"
                         "PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;"
                         "PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY; BEGIN;"
                         "PRAGMA application_id=" +
                         std::to_string(storeApplicationId) +
                         "; PRAGMA user_version=" + std::to_string(currentSchema));
    m_connection.Execute(catalogueSql);
}

void SqliteDatabase::StartRead(std::string const& path, long long fileSize) {
    m_fileSize = fileSize;
    m_connection.OpenForReading(path);
    m_connection.Harden(std::max(fileSize, lengthAtLeast));
    m_connection.LimitWork(fileSize * stepsPerByte + stepsAtLeast);
    // One transaction: what is read is one state of the file.
    m_connection.Execute("BEGIN");
    ReadCatalogue();
}

// Rows are written in their order, so that a small cache is as good as a large one.
void SqliteDatabase::StartContinue(std::string const& path, long long fileSize) {
    m_building = true;
    m_continued = true;
    m_fileSize = fileSize;
    m_connection.OpenForWriting(path);
    // A hardened connection would keep its journal.
    m_connection.Execute("PRAGMA journal_mode=OFF");
    m_connection.Harden(std::max(fileSize * 2, lengthAtLeast), true);
    m_connection.Execute(
        "PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;"
        "PRAGMA cache_size=-4096; PRAGMA temp_store=FILE; BEGIN");
    ReadCatalogue();
    DropAllButTables();
}

// A view or a trigger over a table would hinder its successor.
void SqliteDatabase::DropAllButTables() {
    // As \ref AddIndex makes it.
    std::string const ours =
        "CREATE INDEX \"cls_MapEntry#owner#key\" ON "
        "\"cls_MapEntry\"(\"owner\",\"key\")";
    for (auto const& [name, row] : m_schema)
        if ((row.type == "view" || row.type == "trigger" || row.type == "index") &&
            row.sql != ours && !row.sql.empty())
            m_connection.Execute("DROP " + row.type + " IF EXISTS " + SqlName(name));
}

void SqliteDatabase::ReadCatalogue() {
    SqliteStatement schema(m_connection, "SELECT type,name,rootpage,sql FROM sqlite_schema");
    while (schema.Step())
        m_schema[schema.Text(1)] = {schema.Text(0), schema.Text(3), schema.Int(2) > 0};
    auto const found = m_schema.find(catalogueName);
    if (found == m_schema.end()) RaiseStore("the catalogue of classes is missing", __LINE__);
    if (!found->second.stored || found->second.sql != catalogueSql)
        RaiseStore("the catalogue of classes has not the shape it should have", __LINE__);

    std::set<std::string> listed = {catalogueName};
    SqliteStatement rows(m_connection,
                         "SELECT TypeId,ClassName,TableName,Version,ParentTypeId FROM " +
                             std::string(catalogueName) + " ORDER BY TypeId");
    long long former = -1;
    while (rows.Step()) {
        for (int const column : {0, 3, 4}) {
            rfm_Value const value = rows.Column(column);
            if (value.tag != rfm_Value::Int || value.integer < 0 || value.integer > UINT_MAX ||
                (column == 3 && value.integer > INT_MAX))
                RaiseStore("the catalogue of classes is damaged", __LINE__);
        }
        if (rows.Column(1).tag != rfm_Value::Text || rows.Column(2).tag != rfm_Value::Text ||
            rows.Int(0) <= former || m_catalogue.size() == classesAtMost)
            RaiseStore("the catalogue of classes is damaged", __LINE__);
        former = rows.Int(0);
        if (rows.Int(0) == writerTypeId) {
            m_writer = rows.Text(1);
            continue;
        }
        CatalogueEntry entry{static_cast<unsigned>(rows.Int(0)), rows.Text(1), rows.Text(2),
                             static_cast<int>(rows.Int(3)), static_cast<unsigned>(rows.Int(4))};
        if (!listed.insert(entry.tableName).second)
            RaiseStore("the catalogue of classes names table " + entry.tableName + " twice",
                       __LINE__);
        auto const table = m_schema.find(entry.tableName);
        if (table == m_schema.end())
            RaiseStore("table " + entry.tableName + " is missing", __LINE__);
        if (table->second.type != "table" || !table->second.stored)
            RaiseStore(entry.tableName + " is no table", __LINE__);
        m_catalogue.push_back(std::move(entry));
    }
    for (auto const& [name, row] : m_schema)
        if (row.type == "table" && name.rfind("sqlite_", 0) != 0 && !listed.count(name))
            RaiseStore("table " + name + " is not in the catalogue of classes", __LINE__);
}

// The text that made the table says all about it; only where it is another are the columns asked
// for one by one.
SqliteDatabase::CheckedLayout SqliteDatabase::LayoutInFile(CatalogueEntry const& entry) {
    std::optional<rfm_TableMetadata> expected = m_layoutOf(entry);
    if (expected && m_schema[entry.tableName].sql == TableSql(*expected, entry.tableName))
        return {*std::move(expected), true};

    std::string const table = "table " + entry.tableName;
    rfm_TableMetadata own(entry.typeId, cow_String(std::string_view(entry.className)),
                          entry.version, entry.parentTypeId);
    bool numbered = false;
    SqliteStatement columns(m_connection, "PRAGMA table_xinfo(" + SqlName(entry.tableName) + ")");
    while (columns.Step()) {
        std::string const name = columns.Text(1);
        if (columns.Int(6) != 0) RaiseStore(table + " has a computed column " + name, __LINE__);
        if (name == rowNumberColumn) {
            numbered = columns.Int(5) == 1 && columns.Text(2) == "INTEGER";
            continue;
        }
        std::optional<rfm_ColumnKind> const kind = KindOf(columns.Text(2));
        if (!kind) RaiseStore(table + " has a column " + name + " of an unknown kind", __LINE__);
        own.Add(cow_String(std::string_view(name)), *kind);
    }
    if (!numbered) RaiseStore(table + " has no column of row numbers", __LINE__);
    if (!expected) return {std::move(own), false};

    for (rfm_Column const& column : expected->Columns()) {
        int const place = own.Find(column.name);
        if (place < 0) RaiseStore(table + " lacks column " + column.name.Text(), __LINE__);
        if (own.Columns()[static_cast<std::size_t>(place)].kind != column.kind)
            RaiseStore(table + " has a column " + column.name.Text() + " of another kind",
                       __LINE__);
    }
    for (rfm_Column const& column : own.Columns())
        if (expected->Find(column.name) < 0)
            RaiseStore(table + " has a column " + column.name.Text() + " too many", __LINE__);
    return {*std::move(expected), false};
}

rfm_Table* SqliteDatabase::FindTable(unsigned typeId) {
    auto const open = m_tables.find(typeId);
    if (open != m_tables.end()) return open->second.get();
    CatalogueEntry const* const entry = Find(typeId);
    if (!entry || m_successors.count(typeId)) return nullptr;
    return InStoreTerms([&] {
        CheckedLayout const checked = LayoutInFile(*entry);
        auto table = std::make_unique<SqliteTable>(m_connection, checked.layout, entry->tableName,
                                                   checked.inOrder, m_fileSize);
        return m_tables.emplace(typeId, std::move(table)).first->second.get();
    });
}

// Two classes may bear one name; two tables may not, and SQLite does not tell a from A.
std::string SqliteDatabase::FreeTableName(rfm_TableMetadata const& metadata) const {
    auto const taken = [this](std::string const& name) {
        if (Folded(name) == Folded(catalogueName)) return true;
        for (CatalogueEntry const& entry : m_catalogue)
            if (Folded(entry.tableName) == Folded(name)) return true;
        return false;
    };
    std::string const name(metadata.Name().View());
    return taken(name) ? name + "#" + std::to_string(metadata.TypeId()) : name;
}

rfm_Table& SqliteDatabase::CreateTable(rfm_TableMetadata const& metadata) {
    if (!m_building) RaiseStore("a file that is read was to be written to", __LINE__);
    if (m_tables.count(metadata.TypeId())) RaiseStore("a table was to be made twice", __LINE__);
    return InStoreTerms([&]() -> rfm_Table& {
        CatalogueEntry entry{metadata.TypeId(), std::string(metadata.Name().View()),
                             FreeTableName(metadata), metadata.Version(), metadata.ParentTypeId()};
        m_connection.Execute(TableSql(metadata, entry.tableName));
        auto table = std::make_unique<SqliteTable>(m_connection, metadata, entry.tableName, true,
                                                   SqliteTable::New);
        m_catalogue.push_back(std::move(entry));
        return *(m_tables[metadata.TypeId()] = std::move(table));
    });
}

std::vector<rfm_Table*> SqliteDatabase::Tables() {
    for (CatalogueEntry const& entry : m_catalogue) FindTable(entry.typeId);
    std::vector<rfm_Table*> result;
    for (auto const& [typeId, table] : m_tables) result.push_back(table.get());
    return result;
}

CatalogueEntry* SqliteDatabase::Find(unsigned typeId) {
    auto const entry = std::find_if(
        m_catalogue.begin(), m_catalogue.end(),
        [typeId](CatalogueEntry const& candidate) { return candidate.typeId == typeId; });
    return entry == m_catalogue.end() ? nullptr : &*entry;
}

void SqliteDatabase::DropSqlTable(std::string const& name) {
    m_connection.Execute("DROP TABLE " + SqlName(name));
}

rfm_Table& SqliteDatabase::MakeSuccessor(rfm_TableMetadata const& metadata, bool keepFormer) {
    unsigned const typeId = metadata.TypeId();
    if (!m_building) RaiseStore("a file that is read was to be written to", __LINE__);
    if (m_successors.count(typeId)) RaiseStore("a table was to get two successors", __LINE__);
    return InStoreTerms([&]() -> rfm_Table& {
        std::string const name = "nga_Successor#" + std::to_string(typeId);
        m_connection.Execute(TableSql(metadata, name));
        if (CatalogueEntry* const entry = Find(typeId); entry && !keepFormer) {
            m_tables.erase(typeId);
            DropSqlTable(entry->tableName);
            entry->tableName.clear();
        }
        auto table =
            std::make_unique<SqliteTable>(m_connection, metadata, name, true, SqliteTable::New);
        return *(m_successors[typeId] = std::move(table));
    });
}

void SqliteDatabase::Settle(unsigned typeId) {
    auto const successor = m_successors.find(typeId);
    if (successor == m_successors.end()) return;
    InStoreTerms([&] {
        rfm_TableMetadata const& metadata = successor->second->Metadata();
        std::string const temporary = successor->second->SqlTable();
        m_tables.erase(typeId);
        if (CatalogueEntry* const entry = Find(typeId)) {
            if (!entry->tableName.empty()) DropSqlTable(entry->tableName);
            m_catalogue.erase(m_catalogue.begin() + (entry - m_catalogue.data()));
        }
        CatalogueEntry entry{typeId, std::string(metadata.Name().View()), FreeTableName(metadata),
                             metadata.Version(), metadata.ParentTypeId()};
        successor->second->Renamed(entry.tableName);
        m_connection.Execute("ALTER TABLE " + SqlName(temporary) + " RENAME TO " +
                             SqlName(entry.tableName));
        m_catalogue.push_back(std::move(entry));
        m_tables[typeId] = std::move(successor->second);
        m_successors.erase(successor);
    });
}

void SqliteDatabase::DropTable(unsigned typeId) {
    CatalogueEntry const* const entry = Find(typeId);
    if (!entry) return;
    InStoreTerms([&] {
        m_tables.erase(typeId);
        DropSqlTable(entry->tableName);
        m_catalogue.erase(m_catalogue.begin() + (entry - m_catalogue.data()));
    });
}

void SqliteDatabase::AddIndex(unsigned typeId, int intColumn, int textColumn) {
    FindTable(typeId);
    auto const found = m_tables.find(typeId);
    if (found == m_tables.end()) return;
    found->second->Flush();
    InStoreTerms([&] {
        std::vector<rfm_Column> const& columns = found->second->Metadata().Columns();
        std::string const& table = found->second->SqlTable();
        std::string const first(columns[static_cast<std::size_t>(intColumn)].name.View());
        std::string const second(columns[static_cast<std::size_t>(textColumn)].name.View());
        m_connection.Execute("CREATE INDEX IF NOT EXISTS " +
                             SqlName(table + "#" + first + "#" + second) + " ON " + SqlName(table) +
                             "(" + SqlName(first) + "," + SqlName(second) + ")");
    });
}

void SqliteDatabase::RequireUnique(unsigned typeId, int intColumn, int keyColumn) {
    auto const* const table = static_cast<SqliteTable*>(FindTable(typeId));
    if (!table) return;
    InStoreTerms([&] {
        std::vector<rfm_Column> const& columns = table->Metadata().Columns();
        std::string const number =
            SqlName(columns[static_cast<std::size_t>(intColumn)].name.View());
        std::string const key = SqlName(columns[static_cast<std::size_t>(keyColumn)].name.View());
        // Along the index of the two columns, where the file has it.
        SqliteStatement twice(m_connection, "SELECT max(" + SqlName(rowNumberColumn) + ")," + key +
                                                " FROM " + SqlName(table->SqlTable()) + " WHERE " +
                                                number + ">=0 GROUP BY " + number + "," + key +
                                                " HAVING count(*)>1 LIMIT 1");
        if (twice.Step())
            RaiseStore("row " + std::to_string(twice.Int(0)) + " of table " + table->SqlTable() +
                           " has the key of another, '" + twice.Text(1) + "'",
                       __LINE__);
    });
}

// Tables that were replaced leave pages behind; where they are many, the file is written anew.
void SqliteDatabase::Compact() {
    auto const number = [this](char const* pragma) {
        SqliteStatement statement(m_connection, pragma);
        return statement.Step() ? statement.Int(0) : 0;
    };
    long long const pages = number("PRAGMA page_count");
    if (number("PRAGMA freelist_count") * 3 > pages) m_connection.Execute("VACUUM");
}

void SqliteDatabase::Finish() {
    for (auto const& [typeId, table] : m_tables) table->Flush();
    InStoreTerms([&] {
        // In the order of the numbers, as SQLite keeps the rows.
        std::sort(m_catalogue.begin(), m_catalogue.end(),
                  [](auto const& a, auto const& b) { return a.typeId < b.typeId; });
        m_connection.Execute("DELETE FROM " + std::string(catalogueName) +
                             "; PRAGMA user_version=" + std::to_string(currentSchema));
        {
            SqliteStatement insert(
                m_connection, "INSERT INTO " + std::string(catalogueName) + " VALUES(?,?,?,?,?)");
            auto const add = [&insert](CatalogueEntry const& entry) {
                insert.BindInt(0, entry.typeId);
                insert.Bind(1, rfm_Value::OfText(entry.className.data(),
                                                 static_cast<int>(entry.className.size())));
                insert.Bind(2, rfm_Value::OfText(entry.tableName.data(),
                                                 static_cast<int>(entry.tableName.size())));
                insert.BindInt(3, entry.version);
                insert.BindInt(4, entry.parentTypeId);
                insert.Run();
            };
            add({writerTypeId, writerName, "", currentSchema, 0});
            for (CatalogueEntry const& entry : m_catalogue) add(entry);
        }
        m_tables.clear();
        m_connection.Execute("COMMIT");
        if (m_continued) Compact();
        m_connection.Close();
    });
}

}  // namespace nga
