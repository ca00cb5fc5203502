#include "nga_SafeFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>

#include "nga_StoreError.h"

namespace nga {

namespace {

constexpr int linksAtMost = 40;
constexpr int attemptsAtMost = 1000;
constexpr char const* partSuffix = ".nga-part";

FileStamp StampOf(struct stat const& state) {
    return {true, state.st_dev, state.st_ino, state.st_size,
            state.st_mtim.tv_sec * 1'000'000'000LL + state.st_mtim.tv_nsec};
}

struct FolderCloser {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

FileStamp FileStamp::Of(std::string const& path) {
    struct stat state;
    return stat(path.c_str(), &state) == 0 ? StampOf(state) : FileStamp();
}

FileStamp FileStamp::OfOpen(int file) {
    struct stat state;
    return fstat(file, &state) == 0 ? StampOf(state) : FileStamp();
}

void RefuseJournals(std::string const& path) {
    for (char const* suffix : {"-journal", "-wal"}) {
        struct stat state;
        if (lstat((path + suffix).c_str(), &state) == 0)
            throw StoreError(path, std::string("a journal of another program lies beside it (") +
                                       path + suffix +
                                       "), so its contents are not final: complete or undo that "
                                       "program's change first");
    }
}

SafeFile::SafeFile(std::string const& path) : SafeFile(path, For::Writing) {}

void SafeFile::RequireRoom(std::string const& path) { SafeFile const asked(path, For::Asking); }

SafeFile::SafeFile(std::string const& path, For what) : m_path(path), m_target(path) {
    for (int links = 0;; ++links) {
        char letters[PATH_MAX];
        ssize_t const length = readlink(m_target.c_str(), letters, sizeof letters);
        if (length < 0) break;
        if (links == linksAtMost) Fail("too many symbolic links", 0);
        std::string const link(letters, static_cast<std::size_t>(length));
        std::size_t const slash = m_target.rfind('/');
        m_target = link[0] == '/' || slash == std::string::npos
                       ? link
                       : m_target.substr(0, slash + 1) + link;
    }
    std::size_t const slash = m_target.rfind('/');
    m_folder = slash == std::string::npos ? "." : slash == 0 ? "/" : m_target.substr(0, slash);
    m_name = slash == std::string::npos ? m_target : m_target.substr(slash + 1);
    if (m_name.empty() || m_name == "." || m_name == "..") Fail("this is a folder", 0);

    struct stat state;
    if (stat(m_target.c_str(), &state) == 0) {
        if (S_ISDIR(state.st_mode)) Fail("this is a folder", 0);
        if (!S_ISREG(state.st_mode)) Fail("this is no file", 0);
        if (access(m_target.c_str(), W_OK) != 0) Fail("it may not be written to", errno);
        m_former = StampOf(state);
    } else if (errno != ENOENT) {
        Fail("it cannot be written", errno);
    }
    RefuseJournals(m_target);
    if (what == For::Asking) {
        if (access(m_folder.c_str(), W_OK | X_OK) != 0)
            Fail("no file can be made in its folder", errno);
        return;
    }
    RemoveStale();
    Make();
}

SafeFile::Part::~Part() {
    if (!path.empty()) unlink(path.c_str());
    if (file >= 0) close(file);
}

void SafeFile::Fail(std::string const& what, int system) const {
    throw StoreError(m_path, system ? what + ": " + std::strerror(system) : what);
}

std::string SafeFile::PartPrefix() const { return "." + m_name + "."; }

void SafeFile::Make() {
    struct stat former;
    bool const replaces = m_former.exists && stat(m_target.c_str(), &former) == 0;
    for (int attempt = 0; attempt < attemptsAtMost; ++attempt) {
        std::string part = m_folder + "/" + PartPrefix() + std::to_string(getpid()) + "-" +
                           std::to_string(attempt) + partSuffix;
        // Nobody who may not read the former file is to see its successor grow.
        int const file =
            open(part.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, replaces ? 0600 : 0666);
        if (file < 0 && errno == EEXIST) continue;
        if (file < 0) Fail("no file can be made in its folder", errno);
        struct stat state;
        // Before the lock is taken, somebody may have held the file for a stale one. Where there
        // are no locks, nobody can.
        bool const held = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (held || fstat(file, &state) != 0 || state.st_nlink == 0) {
            close(file);
            continue;
        }
        m_part.path = std::move(part);
        m_part.file = file;
        m_part.cleanup.Begin(m_part.path);
        if (replaces) {
            // Only the superuser can give a file away; for others it stays their own.
            if (fchown(file, former.st_uid, former.st_gid) != 0) errno = 0;
            if (fchmod(file, former.st_mode & 07777) != 0) Fail("its mode cannot be kept", errno);
        }
        return;
    }
    Fail("no file can be made in its folder", EEXIST);
}

void SafeFile::RemoveStale() const {
    std::unique_ptr<DIR, FolderCloser> const folder(opendir(m_folder.c_str()));
    if (!folder) return;
    std::string const prefix = PartPrefix();
    std::size_t const suffixLength = std::strlen(partSuffix);
    while (dirent const* entry = readdir(folder.get())) {
        std::string const name = entry->d_name;
        if (name.size() <= prefix.size() + suffixLength || name.rfind(prefix, 0) != 0 ||
            name.compare(name.size() - suffixLength, suffixLength, partSuffix) != 0)
            continue;
        std::string const path = m_folder + "/" + name;
        int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0) continue;
        if (flock(file, LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
        close(file);
    }
}

FileStamp SafeFile::Commit() {
    if (fsync(m_part.file) != 0) Fail("writing it to the disk failed", errno);
    if (FileStamp::Of(m_target) != m_former)
        Fail("another program changed the file meanwhile; nothing was saved", 0);
    // A file that was not there must not lose its place to a newcomer of this very moment.
    int done = -1;
    if (!m_former.exists) {
        done =
            renameat2(AT_FDCWD, m_part.path.c_str(), AT_FDCWD, m_target.c_str(), RENAME_NOREPLACE);
        if (done != 0 && errno == EEXIST)
            Fail("another program made the file meanwhile; nothing was saved", 0);
    }
    if (done != 0 && std::rename(m_part.path.c_str(), m_target.c_str()) != 0)
        Fail("the new file cannot take its place", errno);
    m_part.cleanup.End();
    m_part.path.clear();
    FileStamp const stamp = FileStamp::OfOpen(m_part.file);
    int const folder = open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        int const synced = fsync(folder);
        int const why = errno;
        close(folder);
        // Some file systems do not sync folders, and say so.
        if (synced != 0 && why != EINVAL && why != ENOTSUP)
            Fail("it was saved, but writing its folder to the disk failed", why);
    }
    return stamp;
}

}  // namespace nga
