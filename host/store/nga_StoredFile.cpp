#include "nga_StoredFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"
#include "nga_SafeFile.h"
#include "nga_StoreError.h"
#include "omi_Singleton.h"
#include "rom_Transporter.h"

namespace nga {

cls_ClassRegistrar const& StoredClasses() {
    return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
}

namespace {

// Where a SQLite file's header holds what is asked of it.
constexpr char const magic[] = "SQLite format 3";
enum HeaderPlace {
    PageSizePlace = 16,
    WriteVersionPlace = 18,
    ReadVersionPlace = 19,
    PageCountPlace = 28,
    EncodingPlace = 56,
    UserVersionPlace = 60,
    ApplicationPlace = 68
};

std::string HexOf(unsigned typeId) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", typeId);
    return text;
}

std::string TextOf(CatalogueEntry const& entry) {
    return "class " + entry.className + " (" + HexOf(entry.typeId) + ")";
}

/// A word as a shell takes it back.
std::string ShellWord(std::string const& text) {
    constexpr char const plain[] =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_./+,:@%=-";
    if (!text.empty() && text.find_first_not_of(plain) == std::string::npos) return text;
    std::string word = "'";
    for (char letter : text) word += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    return word + "'";
}

class Descriptor {
public:
    explicit Descriptor(int file) : m_file(file) {}
    ~Descriptor() {
        if (m_file >= 0) close(m_file);
    }
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;
    int Get() const { return m_file; }

private:
    int m_file;
};

unsigned BigEndian(unsigned char const* bytes, int count) {
    unsigned value = 0;
    for (int i = 0; i < count; ++i) value = value << 8 | bytes[i];
    return value;
}

bool IsCollection(unsigned typeId) {
    return typeId == cls_ListTypeId || typeId == cls_MapTypeId ||
           typeId == rom_Layout::listEntryTypeId || typeId == rom_Layout::mapEntryTypeId;
}

}  // namespace

StoredFile::StoredFile(std::string const& path) : m_path(path) {
    struct stat state;
    if (stat(path.c_str(), &state) != 0)
        Fail(errno == ENOENT ? "there is no such file" : std::strerror(errno));
    if (S_ISDIR(state.st_mode)) Fail("this is a folder");
    if (!S_ISREG(state.st_mode)) Fail("this is no file");
    Descriptor const file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.Get() < 0) Fail(std::strerror(errno));
    m_stamp = FileStamp::OfOpen(file.Get());
    if (m_stamp.size == 0) Fail("the file is empty, not a database");
    if (pread(file.Get(), m_header, headerSize, 0) != headerSize ||
        std::memcmp(m_header, magic, sizeof magic) != 0)
        Fail("this is no database");
    RefuseJournals(path);
    CheckHeader();
}

int StoredFile::Schema() const {
    return static_cast<int>(BigEndian(m_header + UserVersionPlace, 4));
}

std::string StoredFile::Written(SqliteDatabase const& database) const {
    return "was written with schema " + std::to_string(Schema()) +
           (database.Writer().empty() ? "" : " by " + database.Writer());
}

std::unique_ptr<SqliteDatabase> StoredFile::Open() const {
    auto database = SqliteDatabase::Open(m_path, m_stamp.size, LayoutOf);
    std::string const written = Written(*database);
    CheckSchema(written);
    for (CatalogueEntry const& entry : database->Catalogue()) CheckClass(entry, written);
    // Only after that, so that a class of an old version is told before one that is too new.
    for (CatalogueEntry const& entry : database->Catalogue()) CheckVersion(entry, written);
    return database;
}

std::unique_ptr<SqliteDatabase> StoredFile::OpenOld() const {
    auto database = SqliteDatabase::Open(m_path, m_stamp.size, SqliteDatabase::LayoutOfCollection);
    std::string const written = Written(*database);
    CheckSchema(written);
    for (CatalogueEntry const& entry : database->Catalogue()) {
        std::optional<Registered> const known = Known(entry.typeId);
        // What never had another layout may bear its number in any file.
        if (!known || known->version != entry.version) CheckVersion(entry, written);
        bool const isOld = IsOld(entry);
        if (!known && !isOld) Fail("it holds " + TextOf(entry) + ", which this nga does not know");
        if (known && (entry.className != known->name || entry.version > known->version) && !isOld)
            Fail("the catalogue of classes does not fit " + TextOf(entry));
    }
    return database;
}

bool StoredFile::IsCurrent() const {
    if (Schema() != currentSchema) return false;
    auto const database = OpenOld();
    for (CatalogueEntry const& entry : database->Catalogue())
        if (!IsCurrent(entry)) return false;
    return true;
}

void StoredFile::CheckUnchanged() const {
    if (FileStamp::Of(m_path) != m_stamp)
        Fail("another program changed the file while it was read");
}

void StoredFile::Fail(std::string const& cause) const { throw StoreError(m_path, cause); }

void StoredFile::CheckHeader() const {
    if (BigEndian(m_header + ApplicationPlace, 4) != storeApplicationId)
        Fail("this is a database of another program");
    if (m_header[WriteVersionPlace] != 1 || m_header[ReadVersionPlace] != 1)
        Fail("the database is in write-ahead mode; PRAGMA journal_mode=DELETE ends it");
    if (BigEndian(m_header + EncodingPlace, 4) != 1) Fail("its text is not in UTF-8");
    unsigned const pageSize = BigEndian(m_header + PageSizePlace, 2);
    long long const whole = static_cast<long long>(pageSize == 1 ? 65536 : pageSize) *
                            BigEndian(m_header + PageCountPlace, 4);
    if (m_stamp.size < whole)
        Fail("the file is truncated: " + std::to_string(m_stamp.size) + " of " +
             std::to_string(whole) + " bytes are there");
}

void StoredFile::CheckSchema(std::string const& written) const {
    std::string const range = std::to_string(oldestSchema) + " to " + std::to_string(currentSchema);
    if (Schema() > currentSchema)
        Fail(written + "; this nga reads schemas " + range + ": a newer nga is needed");
    if (Schema() < oldestSchema)
        Fail(written + ", which never was; this nga reads schemas " + range);
}

void StoredFile::CheckVersion(CatalogueEntry const& entry, std::string const& written) const {
    if (entry.version > Schema())
        Fail(written + ", and yet holds " + TextOf(entry) + " in version " +
             std::to_string(entry.version) + ": it is damaged, or another program changed it");
}

bool StoredFile::IsCurrent(CatalogueEntry const& entry) {
    std::optional<Registered> const known = Known(entry.typeId);
    return known && entry.version == known->version && entry.className == known->name &&
           entry.parentTypeId == known->parentTypeId;
}

void StoredFile::CheckClass(CatalogueEntry const& entry, std::string const& written) const {
    if (IsCurrent(entry)) return;
    std::optional<Registered> const known = Known(entry.typeId);
    std::string const what = TextOf(entry);
    std::string const remedy = "; to bring it to schema " + std::to_string(currentSchema) +
                               ", run: nga upgrade " + ShellWord(m_path);
    if (!known) {
        if (IsOld(entry)) Fail(written + " and holds " + what + ", which is gone" + remedy);
        Fail("it holds " + what + ", which this nga does not know");
    }
    if (entry.version < known->version)
        Fail(written + " and holds " + what + " in version " + std::to_string(entry.version) +
             " of " + std::to_string(known->version) + remedy);
    Fail("the catalogue of classes does not fit " + what);
}

std::optional<StoredFile::Registered> StoredFile::Known(unsigned typeId) {
    if (IsCollection(typeId)) {
        rfm_TableMetadata const layout = rom_Layout::OfType(typeId, StoredClasses());
        return Registered{std::string(layout.Name().View()), layout.Version(),
                          layout.ParentTypeId()};
    }
    cls_ClassMetadata const* const metadata = StoredClasses().Find(typeId);
    if (!metadata) return std::nullopt;
    return Registered{std::string(metadata->Name().View()), metadata->Version(),
                      metadata->ParentTypeId()};
}

bool StoredFile::IsOld(CatalogueEntry const& entry) {
    auto const& registrar = omi_Singleton<dbc_OldClassRegistrar>::Instance();
    for (dbc_OldClassRegistrar::Entry const& registered : registrar.Entries()) {
        cls_ClassRegistrar own;
        registered.holder->GetRef().InitializeMetadata(own);
        cls_ClassMetadata const* const old = own.Find(entry.typeId);
        if (old && old->Name().View() == entry.className) return true;
    }
    return false;
}

std::optional<rfm_TableMetadata> StoredFile::LayoutOf(CatalogueEntry const& entry) {
    std::optional<Registered> const known = Known(entry.typeId);
    if (!known || known->version != entry.version) return std::nullopt;
    return rom_Layout::OfType(entry.typeId, StoredClasses());
}

}  // namespace nga
