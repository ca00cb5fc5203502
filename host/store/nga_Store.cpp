#include "nga_Store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cls_MetadataRegistrar.h"
#include "mdl_Repository.h"
#include "nex_Exception.h"
#include "nga_SafeFile.h"
#include "nga_SqliteDatabase.h"
#include "omi_Singleton.h"
#include "rom_Transporter.h"

namespace nga {

namespace {

// Where a SQLite file's header holds what is asked of it.
constexpr int headerSize = 100;
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

cls_ClassRegistrar const& Registrar() {
    return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
}

std::string TextOf(nex_Exception const& exception) {
    return std::string(exception.AsString().View());
}

std::string HexOf(unsigned typeId) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", typeId);
    return text;
}

// Runs work on a file, and puts the file's name to what goes wrong in it.
template <class Work>
auto OnFile(std::string const& path, Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (nex_Exception const& exception) {
        throw StoreError(path, TextOf(exception));
    } catch (SqliteError const& error) {
        throw StoreError(path, error.what());
    }
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

/// A file that was looked at from outside and found to be ours and readable.
class StoredFile {
public:
    explicit StoredFile(std::string const& path) : m_path(path) {
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

    std::string const& Path() const { return m_path; }
    FileStamp const& Stamp() const { return m_stamp; }
    int Schema() const { return static_cast<int>(BigEndian(m_header + UserVersionPlace, 4)); }

    std::unique_ptr<SqliteDatabase> Open() const {
        auto database = SqliteDatabase::Open(m_path, m_stamp.size, LayoutOf);
        std::string const by = database->Writer().empty() ? "" : " by " + database->Writer();
        std::string const schema = "was written with schema " + std::to_string(Schema()) + by;
        std::string const range =
            std::to_string(oldestSchema) + " to " + std::to_string(currentSchema);
        if (Schema() > currentSchema)
            Fail(schema + "; this nga reads schemas " + range + ": a newer nga is needed");
        if (Schema() < oldestSchema)
            Fail(schema + ", which never was; this nga reads schemas " + range);
        for (CatalogueEntry const& entry : database->Catalogue()) CheckClass(entry, schema);
        return database;
    }
    // Whoever wrote into the file while it was read may have left us with half of it.
    void CheckUnchanged() const {
        if (FileStamp::Of(m_path) != m_stamp)
            Fail("another program changed the file while it was read");
    }
    [[noreturn]] void Fail(std::string const& cause) const { throw StoreError(m_path, cause); }

private:
    void CheckHeader() const {
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

    void CheckClass(CatalogueEntry const& entry, std::string const& schema) const {
        std::optional<Registered> const known = Known(entry.typeId);
        if (known && entry.version == known->version && entry.className == known->name &&
            entry.parentTypeId == known->parentTypeId)
            return;
        std::string const upgrade = "; `nga upgrade " + m_path + "` brings it up to date";
        std::string const what = "class " + entry.className + " (" + HexOf(entry.typeId) + ")";
        if (!known) {
            if (Schema() < currentSchema)
                Fail(schema + " and holds " + what + ", which is gone" + upgrade);
            Fail("it holds " + what + ", which this nga does not know");
        }
        if (entry.version < known->version)
            Fail(schema + " and holds " + what + " in version " + std::to_string(entry.version) +
                 " of " + std::to_string(known->version) + upgrade);
        Fail("the catalogue of classes does not fit " + what);
    }

    /// What this build holds of a class, without its fields.
    struct Registered {
        std::string name;
        int version;
        unsigned parentTypeId;
    };
    static bool IsCollection(unsigned typeId) {
        return typeId == cls_ListTypeId || typeId == cls_MapTypeId ||
               typeId == rom_Layout::listEntryTypeId || typeId == rom_Layout::mapEntryTypeId;
    }
    static std::optional<Registered> Known(unsigned typeId) {
        if (IsCollection(typeId)) {
            rfm_TableMetadata const layout = rom_Layout::OfType(typeId, Registrar());
            return Registered{std::string(layout.Name().View()), layout.Version(),
                              layout.ParentTypeId()};
        }
        cls_ClassMetadata const* const metadata = Registrar().Find(typeId);
        if (!metadata) return std::nullopt;
        return Registered{std::string(metadata->Name().View()), metadata->Version(),
                          metadata->ParentTypeId()};
    }
    static std::optional<rfm_TableMetadata> LayoutOf(CatalogueEntry const& entry) {
        std::optional<Registered> const known = Known(entry.typeId);
        if (!known || known->version != entry.version) return std::nullopt;
        return rom_Layout::OfType(entry.typeId, Registrar());
    }

    std::string m_path;
    FileStamp m_stamp;
    unsigned char m_header[headerSize] = {};
};

std::string StemOf(std::string const& path) {
    std::string const name = path.substr(path.rfind('/') + 1);
    std::size_t const dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

bool LeftOut(mdl_Extension const& extension, SaveOptions const& options) {
    auto const* repository = dynamic_cast<mdl_Repository const*>(&extension.ConstGetValue());
    if (repository) return repository->Size() == 0;
    return options.isEmpty && options.isEmpty(extension);
}

void FillDatabase(ddr_Model const& model, SaveOptions const& options, std::string const& part) {
    std::unique_ptr<SqliteDatabase> const database = SqliteDatabase::Build(part);
    rom_Transporter transporter(*database, Registrar());
    ddr_Model::RegisteredExtensions().Each([&](cow_String const& name, mdl_Extension const&) {
        if (!model.HasInstance(name)) return;
        auto const& extension = model.ConstGetExtension(name);
        if (!LeftOut(extension, options)) transporter.Write(&extension, extension.DynTypeId());
    });
    database->AddIndex(rom_Layout::mapEntryTypeId, rom_Layout::MapEntryOwner,
                       rom_Layout::MapEntryKey);
    database->Finish();
}

}  // namespace

FileStamp SaveModel(ddr_Model const& model, std::string const& path, SaveOptions const& options) {
    return OnFile(path, [&] {
        SafeFile file(path);
        if (options.expected && file.Former() != *options.expected)
            throw StoreError(path, options.expected->exists
                                       ? "another program changed the file since it was opened; "
                                         "nothing was saved"
                                       : "the file is there already; nothing was saved");
        FillDatabase(model, options, file.PartPath());
        return file.Commit();
    });
}

std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp* stamp) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        auto model = std::make_unique<ddr_Model>(cow_String(std::string_view(StemOf(path))));
        {
            std::unique_ptr<SqliteDatabase> const database = file.Open();
            database->Tables();
            rom_Transporter transporter(*database, Registrar());
            ddr_Model::RegisteredExtensions().Each([&](cow_String const& name,
                                                       mdl_Extension const& prototype) {
                rfm_Table* const table = database->FindTable(prototype.DynTypeId());
                if (!table || table->RowCount() == 0) return;
                if (table->RowCount() > 1)
                    file.Fail("table " + std::string(table->Metadata().Name().View()) +
                              " holds more than the one row of the model");
                cow_ErasedHandle const read = transporter.Read(prototype.DynTypeId(), 0);
                auto const* extension = static_cast<mdl_Extension const*>(read.ErasedReferent());
                model->SetExtension(name, extension->Copy());
            });
        }
        file.CheckUnchanged();
        if (stamp) *stamp = file.Stamp();
        return model;
    });
}

cow_ErasedHandle ReadNamed(std::string const& path, cow_String const& repository,
                           cow_String const& name, unsigned elementTypeId) {
    return OnFile(path, [&] {
        mdl_Extension const* const prototype = ddr_Model::RegisteredExtensions().Find(repository);
        if (!prototype)
            throw StoreError(path, "there is no repository " + std::string(repository.View()));
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = file.Open();
        rom_Transporter transporter(*database, Registrar());
        cow_ErasedHandle result = transporter.ReadMapElement(
            prototype->DynTypeId(), 0, cow_String("extension"), name, elementTypeId);
        file.CheckUnchanged();
        return result;
    });
}

FileFacts ReadFacts(std::string const& path) {
    return OnFile(path, [&] {
        StoredFile const file(path);
        std::unique_ptr<SqliteDatabase> const database = SqliteDatabase::Open(
            path, file.Stamp().size,
            [](CatalogueEntry const&) { return std::optional<rfm_TableMetadata>(); });
        return FileFacts{file.Schema(), database->Writer()};
    });
}

}  // namespace nga
