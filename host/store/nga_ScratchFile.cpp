#include "nga_ScratchFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>

#include "nga_StoreError.h"

namespace nga {

namespace {

constexpr char const namePrefix[] = "nga-dry-run-";
constexpr int scratchNamesAtMost = 100;

struct ScratchFolderCloser {
    void operator()(DIR* folder) const { closedir(folder); }
};

// Nobody waits for these: what cannot be removed stays.
void RemoveStale(std::string const& folder) {
    std::unique_ptr<DIR, ScratchFolderCloser> const entries(opendir(folder.c_str()));
    if (!entries) return;
    while (dirent const* entry = readdir(entries.get())) {
        if (std::strncmp(entry->d_name, namePrefix, sizeof namePrefix - 1) != 0) continue;
        std::string const path = folder + "/" + entry->d_name;
        int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0) continue;
        struct stat state;
        if (fstat(file, &state) == 0 && S_ISREG(state.st_mode) && state.st_uid == geteuid() &&
            flock(file, LOCK_EX | LOCK_NB) == 0)
            unlink(path.c_str());
        close(file);
    }
}

}  // namespace

ScratchFile::ScratchFile(std::string const& of) {
    std::error_code ignored;
    std::string const folder = std::filesystem::temp_directory_path(ignored).string();
    RemoveStale(folder);
    bool made = false;
    for (int attempt = 0; attempt < scratchNamesAtMost && !made; ++attempt) made = Make(folder);
    if (!made)
        throw StoreError(
            of, std::string("there is no room for a scratch copy: ") + std::strerror(errno));
    m_cleanup.Begin(m_path);
}

bool ScratchFile::Make(std::string const& folder) {
    m_path = folder + "/" + namePrefix + "XXXXXX";
    m_file = mkostemp(m_path.data(), O_CLOEXEC);
    if (m_file < 0) return false;
    struct stat state;
    // Before the lock is taken, somebody may have held the file for a stale one.
    bool const held = flock(m_file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (!held && fstat(m_file, &state) == 0 && state.st_nlink > 0) return true;
    close(m_file);
    errno = EAGAIN;
    return false;
}

ScratchFile::~ScratchFile() {
    unlink(m_path.c_str());
    close(m_file);
}

}  // namespace nga
