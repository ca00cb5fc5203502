#pragma once

#include <memory>
#include <optional>
#include <string>

#include "cls_ClassRegistrar.h"
#include "nga_FileStamp.h"
#include "nga_SqliteDatabase.h"

namespace nga {

/// The classes of databases in this build.
cls_ClassRegistrar const& StoredClasses();

/// A file that was looked at from outside and found to be ours and readable. Failures are raised as
/// StoreError under its path.
class StoredFile {
public:
    explicit StoredFile(std::string const& path);

    std::string const& Path() const { return m_path; }
    FileStamp const& Stamp() const { return m_stamp; }
    int Schema() const;

    /// Its contents, all of whose classes are those of this build.
    std::unique_ptr<SqliteDatabase> Open() const;
    /// Its contents as they stand, of any schema that there was; every class is known, in a version
    /// that it was stored in or that needs no step.
    std::unique_ptr<SqliteDatabase> OpenOld() const;
    /// Whether \ref Open would have it.
    bool IsCurrent() const;
    /// Whoever wrote into the file while it was read may have left us with half of it.
    void CheckUnchanged() const;
    [[noreturn]] void Fail(std::string const& cause) const;

    /// Whether this build has the class, in whatever version, or it is a collection.
    static bool IsKnown(unsigned typeId) { return Known(typeId).has_value(); }

private:
    /// What this build holds of a class, without its fields.
    struct Registered {
        std::string name;
        int version;
        unsigned parentTypeId;
    };
    static std::optional<Registered> Known(unsigned typeId);
    static std::optional<rfm_TableMetadata> LayoutOf(CatalogueEntry const& entry);
    /// Whether the class was there once, under this name.
    static bool IsOld(CatalogueEntry const& entry);
    static bool IsCurrent(CatalogueEntry const& entry);
    std::string Written(SqliteDatabase const& database) const;
    void CheckHeader() const;
    void CheckSchema(std::string const& written) const;
    void CheckClass(CatalogueEntry const& entry, std::string const& written) const;
    void CheckVersion(CatalogueEntry const& entry, std::string const& written) const;

    static constexpr int headerSize = 100;
    std::string m_path;
    FileStamp m_stamp;
    unsigned char m_header[headerSize] = {};
};

}  // namespace nga
