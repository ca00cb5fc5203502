#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "nga_Sqlite.h"
#include "rfm_Database.h"

namespace nga {

class SqliteTable;

/// Marks a file as one of ours: the letters "NGA" and a 1, in the header of the file.
inline constexpr int storeApplicationId = 0x4E474131;
inline constexpr int storePageSize = 16384;
/// The oldest schema number there is, and the one that this build writes.
inline constexpr int oldestSchema = 203;
inline constexpr int currentSchema = 1111;

/// One class of the catalogue that a file holds.
struct CatalogueEntry {
    unsigned typeId = 0;
    std::string className;
    std::string tableName;
    int version = 0;
    unsigned parentTypeId = 0;
};

/// A record store in a SQLite file: one SQL table a class, made when the class's first row comes,
/// and a catalogue of the classes. It is either built, in one transaction that Finish ends, from
/// nothing or from the copy of a file, or read; a file that is read is never written to. Failures
/// are raised as nex_TextException.
class SqliteDatabase final : public rfm_WorkDatabase {
public:
    /// The layout that a class's table must have at a version; none where it is not known, and the
    /// table's own is taken.
    using LayoutOf = std::function<std::optional<rfm_TableMetadata>(CatalogueEntry const&)>;

    /// The layout of collections, which is the same at every version; none for a class.
    static std::optional<rfm_TableMetadata> LayoutOfCollection(CatalogueEntry const& entry);

    /// Starts to fill an empty file.
    static std::unique_ptr<SqliteDatabase> Build(std::string const& path);
    /// Goes on with a file that is nobody else's: its tables can be added to and replaced. What
    /// it holds besides tables goes.
    static std::unique_ptr<SqliteDatabase> Continue(std::string const& path, long long fileSize);
    /// Opens a file whose header the caller has looked at. \p fileSize bounds what its contents can
    /// claim.
    static std::unique_ptr<SqliteDatabase> Open(std::string const& path, long long fileSize,
                                                LayoutOf layoutOf);
    ~SqliteDatabase() override;

    rfm_Table* FindTable(unsigned typeId) override;
    rfm_Table& CreateTable(rfm_TableMetadata const& metadata) override;
    std::vector<rfm_Table*> Tables() override;
    rfm_Table& MakeSuccessor(rfm_TableMetadata const& metadata, bool keepFormer) override;
    void Settle(unsigned typeId) override;
    void DropTable(unsigned typeId) override;

    /// Keeps an index for FindRow over two columns of a table; none if there is no such table.
    void AddIndex(unsigned typeId, int intColumn, int textColumn);
    /// Raises if two rows of a table that is read have the same number, no negative one, and the
    /// same key. One pass over the index of the two columns.
    void RequireUnique(unsigned typeId, int intColumn, int keyColumn);
    /// Completes a file under construction. Nothing can be called afterwards.
    void Finish();

    std::vector<CatalogueEntry> const& Catalogue() const { return m_catalogue; }
    /// The program that wrote the file.
    std::string const& Writer() const { return m_writer; }

private:
    friend class SqliteTable;

    struct SchemaRow {
        std::string type;
        std::string sql;
        bool stored = false;  ///< rows of its own, unlike a view or a virtual table
    };

    SqliteDatabase();
    void StartBuild(std::string const& path);
    void StartRead(std::string const& path, long long fileSize);
    void StartContinue(std::string const& path, long long fileSize);
    void DropAllButTables();
    void Compact();
    void DropSqlTable(std::string const& name);
    CatalogueEntry* Find(unsigned typeId);
    void ReadCatalogue();
    struct CheckedLayout {
        rfm_TableMetadata layout;
        bool inOrder;  ///< the table's columns stand in the order of the layout
    };
    CheckedLayout LayoutInFile(CatalogueEntry const& entry);
    std::string FreeTableName(rfm_TableMetadata const& metadata) const;

    SqliteConnection m_connection;
    bool m_building = false;
    bool m_continued = false;
    long long m_fileSize = 0;
    LayoutOf m_layoutOf;
    std::vector<CatalogueEntry> m_catalogue;  ///< by rising TypeId where it was read
    std::string m_writer;
    std::map<std::string, SchemaRow> m_schema;
    std::map<unsigned, std::unique_ptr<SqliteTable>> m_tables;
    std::map<unsigned, std::unique_ptr<SqliteTable>> m_successors;
};

}  // namespace nga
