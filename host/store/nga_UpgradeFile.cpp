#include "nga_UpgradeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <vector>

#include "cls_MetadataRegistrar.h"
#include "dbc_Upgrade.h"
#include "ddr_Model.h"
#include "nex_Exception.h"
#include "nga_SafeFile.h"
#include "nga_ScratchFile.h"
#include "nga_SqliteDatabase.h"
#include "nga_StoreError.h"
#include "nga_StoredFile.h"
#include "omi_Singleton.h"

namespace nga {

namespace {

constexpr std::size_t copyBuffer = 1 << 20;
constexpr std::size_t copyAtOnce = 1 << 30;
constexpr int backupsAtMost = 1000;
// How far an upgrade is when its rows are converted, and when their references are known.
constexpr double converted = 0.6;
constexpr double lookedAt = 0.75;

class OpenFile {
public:
    OpenFile(std::string const& path, int flags) : m_file(open(path.c_str(), flags | O_CLOEXEC)) {}
    ~OpenFile() {
        if (m_file >= 0) close(m_file);
    }
    OpenFile(OpenFile const&) = delete;
    OpenFile& operator=(OpenFile const&) = delete;
    int Get() const { return m_file; }

private:
    int m_file;
};

// Copies a whole file over an open, empty one; false with errno set.
bool CopyBytes(int from, int to) {
    // The kernel's own copy costs no buffer, and on some file systems no room.
    for (;;) {
        ssize_t const done = copy_file_range(from, nullptr, to, nullptr, copyAtOnce, 0);
        if (done == 0) return true;
        if (done < 0) break;
    }
    if (errno != EXDEV && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) return false;
    if (lseek(from, 0, SEEK_SET) < 0 || lseek(to, 0, SEEK_SET) < 0) return false;
    std::vector<char> buffer(copyBuffer);
    for (;;) {
        ssize_t const length = read(from, buffer.data(), buffer.size());
        if (length == 0) return true;
        if (length < 0) return false;
        for (ssize_t written = 0; written < length;) {
            ssize_t const part =
                write(to, buffer.data() + written, static_cast<std::size_t>(length - written));
            if (part < 0) return false;
            written += part;
        }
    }
}

void CopyFile(std::string const& from, std::string const& to) {
    OpenFile const source(from, O_RDONLY), target(to, O_WRONLY | O_TRUNC);
    if (source.Get() < 0) throw StoreError(from, std::strerror(errno));
    if (target.Get() < 0 || !CopyBytes(source.Get(), target.Get()))
        throw StoreError(from, std::string("it cannot be copied: ") + std::strerror(errno));
}

std::string BackupName(std::string const& path, int schema, int number) {
    std::string const name = path + ".schema-" + std::to_string(schema) + ".bak";
    return number == 1 ? name : name + "." + std::to_string(number);
}

// Where the old file would stay if it were kept now.
std::string FreeBackup(std::string const& path, int schema) {
    for (int number = 1; number <= backupsAtMost; ++number) {
        std::string backup = BackupName(path, schema, number);
        struct stat state;
        if (lstat(backup.c_str(), &state) != 0) return backup;
    }
    throw StoreError(path, "there are too many old files beside it");
}

// Gives the old file a second name, under which it stays, or copies it where it cannot have one.
std::string KeepBeside(std::string const& path, int schema) {
    std::error_code ignored;
    std::filesystem::path const real = std::filesystem::canonical(path, ignored);
    std::string const source = real.empty() ? path : real.string();
    for (int number = 1; number <= backupsAtMost; ++number) {
        std::string const backup = BackupName(path, schema, number);
        if (link(source.c_str(), backup.c_str()) == 0) return backup;
        if (errno == EEXIST) continue;
        struct stat state, taken;
        if (stat(source.c_str(), &state) != 0)
            throw StoreError(path,
                             std::string("it cannot be kept beside: ") + std::strerror(errno));
        if (lstat(backup.c_str(), &taken) == 0) continue;
        try {
            // Under its name stands a whole copy or none, whatever happens meanwhile.
            SafeFile copy(backup);
            if (chmod(copy.PartPath().c_str(), state.st_mode & 07777) != 0) errno = 0;
            CopyFile(source, copy.PartPath());
            copy.Commit();
        } catch (StoreError const& error) {
            throw StoreError(path, "it cannot be kept beside as " + backup + ": " + error.Cause());
        }
        return backup;
    }
    throw StoreError(path, "there are too many old files beside it");
}

struct Work {
    StoredFile const& file;
    UpgradeFileOptions const& options;
};

dbc_UpgradeReport Convert(Work const& work, std::string const& part) {
    CopyFile(work.file.Path(), part);
    work.file.CheckUnchanged();
    std::unique_ptr<SqliteDatabase> const original = work.file.OpenOld();
    std::unique_ptr<SqliteDatabase> const database =
        SqliteDatabase::Continue(part, work.file.Stamp().size);
    dbc_UpgradeOptions options;
    options.complete = work.options.complete;
    if (work.options.progress) {
        options.progress = [](void* context, double done) {
            (*static_cast<std::function<void(double)> const*>(context))(done * converted);
        };
        options.progressContext =
            const_cast<void*>(static_cast<void const*>(&work.options.progress));
    }
    cls_ClassRegistrar const& current =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    dbc_UpgradeReport report;
    {
        dbc_Upgrade upgrade(*original, *database, current,
                            omi_Singleton<dbc_OldClassRegistrar>::Instance(), options);
        report = upgrade.Run();
    }
    for (rfm_Table const* table : database->Tables()) {
        rfm_TableMetadata const& layout = table->Metadata();
        if (!StoredFile::IsKnown(layout.TypeId()))
            work.file.Fail("it holds class " + std::string(layout.Name().View()) + " in version " +
                           std::to_string(layout.Version()) +
                           ", from which nothing leads to a class of today");
    }
    // What comes now goes over the rows once more each.
    auto const progress = [&](double done) {
        if (work.options.progress) work.options.progress(done);
    };
    progress(converted);
    report.references = dbc_Upgrade::LookAtReferences(*database, current);
    progress(lookedAt);
    // Nothing refers to what the model itself holds.
    ddr_Model::RegisteredExtensions().Each([&](cow_String const&, mdl_Extension const& extension) {
        std::erase_if(report.references.unreferenced, [&](dbc_UnreferencedReport const& each) {
            return each.typeId == extension.DynTypeId();
        });
    });
    // A file of today is only copied.
    if (work.options.adopt && !work.file.IsCurrent())
        work.options.adopt(*database, report.references);
    database->AddIndex(rom_Layout::mapEntryTypeId, rom_Layout::MapEntryOwner,
                       rom_Layout::MapEntryKey);
    database->Finish();
    work.file.CheckUnchanged();
    if (work.options.inspect) work.options.inspect(part, report.references);
    progress(1.0);
    return report;
}

UpgradedFile BringToCurrent(std::string const& path, UpgradeFileOptions const& options) {
    StoredFile const file(path);
    UpgradedFile result;
    result.schema = file.Schema();
    {
        std::unique_ptr<SqliteDatabase> const database = file.OpenOld();
        result.writer = database->Writer();
        for (rfm_Table* table : database->Tables()) result.rows += table->RowCount();
    }
    if (file.IsCurrent() && options.output.empty()) {
        result.current = true;
        return result;
    }
    Work const work{file, options};
    if (options.dryRun) {
        SafeFile::RequireRoom(options.output.empty() ? path : options.output);
        ScratchFile const scratch(path);
        result.report = Convert(work, scratch.Path());
        if (options.output.empty()) result.backup = FreeBackup(path, result.schema);
        return result;
    }
    SafeFile target(options.output.empty() ? path : options.output);
    result.report = Convert(work, target.PartPath());
    if (options.output.empty()) result.backup = KeepBeside(path, result.schema);
    try {
        target.Commit();
    } catch (...) {
        // Once the new file is there, this is the only old one.
        if (!result.backup.empty() && !target.TookPlace()) unlink(result.backup.c_str());
        throw;
    }
    return result;
}

}  // namespace

UpgradedFile UpgradeFile(std::string const& path, UpgradeFileOptions const& options) {
    try {
        return BringToCurrent(path, options);
    } catch (nex_Exception const& exception) {
        throw StoreError(path, std::string(exception.AsString().View()));
    } catch (SqliteError const& error) {
        throw StoreError(path, error.what());
    }
}

}  // namespace nga
