#include "nga_SafeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

#include "store_support.h"

namespace {

using namespace store_test;
namespace fs = std::filesystem;
using SavedFile = Store;

std::string SaveRefusal(ddr_Model const& model, std::string const& path,
                        nga::SaveOptions const& options = {}) {
    try {
        nga::SaveModel(model, path, options);
    } catch (nga::StoreError const& error) {
        EXPECT_EQ(error.Path(), path);
        return error.Cause();
    }
    return std::string();
}

mode_t ModeOf(std::string const& path) {
    struct stat state = {};
    EXPECT_EQ(stat(path.c_str(), &state), 0);
    return state.st_mode & 07777;
}

TEST_F(SavedFile, KeepsItsMode) {
    std::string const path = folder.File("m.nga");
    mode_t const former = umask(022);
    nga::SaveModel(*MakeModel(1), path);
    EXPECT_EQ(ModeOf(path), 0644u);
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    nga::SaveModel(*MakeModel(2), path);
    EXPECT_EQ(ModeOf(path), 0640u);
    umask(former);
}

TEST_F(SavedFile, IsReachedThroughASymbolicLinkThatStays) {
    fs::create_directory(folder.File("d"));
    fs::create_symlink("d/real.nga", folder.File("a.nga"));
    fs::create_symlink("a.nga", folder.File("b.nga"));
    nga::SaveModel(*MakeModel(1), folder.File("b.nga"));
    EXPECT_TRUE(fs::is_symlink(folder.File("b.nga")));
    EXPECT_TRUE(fs::is_symlink(folder.File("a.nga")));
    EXPECT_TRUE(fs::is_regular_file(folder.File("d/real.nga")));
    EXPECT_EQ(Materials(*nga::LoadModel(folder.File("b.nga"))).Size(), 1);
    fs::create_symlink("loop.nga", folder.File("loop.nga"));
    EXPECT_EQ(SaveRefusal(*MakeModel(1), folder.File("loop.nga")), "too many symbolic links");
}

TEST_F(SavedFile, IsLeftAloneWhenItChangedSinceItWasOpened) {
    std::string const path = folder.File("m.nga");
    nga::SaveOptions options;
    options.expected = nga::SaveModel(*MakeModel(1), path);
    nga::FileStamp seen;
    nga::LoadModel(path, &seen);
    EXPECT_TRUE(seen == *options.expected);
    options.expected = nga::SaveModel(*MakeModel(2), path, options);
    nga::SaveModel(*MakeModel(3), path);
    EXPECT_EQ(SaveRefusal(*MakeModel(4), path, options),
              "another program changed the file since it was opened; nothing was saved");
    EXPECT_EQ(Materials(*nga::LoadModel(path)).Size(), 3);
    options.expected = nga::FileStamp();
    EXPECT_EQ(SaveRefusal(*MakeModel(4), path, options),
              "the file is there already; nothing was saved");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(SavedFile, IsLeftAloneWhenItChangesWhileItIsSaved) {
    std::string const path = folder.File("m.nga");
    nga::SaveModel(*MakeModel(1), path);
    {
        nga::SafeFile file(path);
        nga::SaveModel(*MakeModel(2), path);
        EXPECT_THROW(file.Commit(), nga::StoreError);
    }
    EXPECT_EQ(Materials(*nga::LoadModel(path)).Size(), 2);
    std::string const other = folder.File("new.nga");
    {
        nga::SafeFile file(other);
        nga::SaveModel(*MakeModel(2), other);
        EXPECT_THROW(file.Commit(), nga::StoreError);
    }
    EXPECT_EQ(Materials(*nga::LoadModel(other)).Size(), 2);
    EXPECT_EQ(folder.Entries(), 2);
}

TEST_F(SavedFile, IsNotSavedWhereItCannotBe) {
    auto const model = MakeModel(1);
    std::string const path = folder.File("m.nga");
    EXPECT_EQ(SaveRefusal(*model, folder.Path()), "this is a folder");
    EXPECT_EQ(SaveRefusal(*model, folder.Path() + "/"), "this is a folder");
    EXPECT_EQ(SaveRefusal(*model, ""), "this is a folder");
    EXPECT_EQ(SaveRefusal(*model, "/dev/null"), "this is no file");
    EXPECT_EQ(SaveRefusal(*model, folder.File("none/m.nga")),
              "no file can be made in its folder: No such file or directory");
    Overwrite(folder.File("plain"), "x");
    EXPECT_EQ(SaveRefusal(*model, folder.File("plain/m.nga")),
              "it cannot be written: Not a directory");
    // A folder in which nobody, not even the superuser, can make a file.
    EXPECT_EQ(SaveRefusal(*model, "/proc/self/m.nga"),
              "no file can be made in its folder: No such file or directory");
    nga::SaveModel(*model, path);
    Overwrite(path + "-journal", "");
    EXPECT_NE(SaveRefusal(*model, path).find("a journal of another program lies beside it"),
              std::string::npos);
    EXPECT_EQ(folder.Entries(), 3);
}

// Runs work in a child that has no more privileges than anybody; gives its exit status.
template <class Work>
int InChild(Work work) {
    pid_t const child = fork();
    if (child == 0) _exit(work());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

TEST_F(SavedFile, IsNotSavedWithoutPermission) {
    std::string const path = folder.File("m.nga");
    auto const model = MakeModel(1);
    nga::SaveModel(*model, path);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    std::string const before = Contents(path);
    auto const refused = [&](std::string const& text) {
        return InChild([&]() -> int {
            if (setgid(65534) != 0 || setuid(65534) != 0) return 2;
            return SaveRefusal(*model, path).find(text) == std::string::npos;
        });
    };
    if (getuid() != 0) GTEST_SKIP() << "only the superuser can become somebody else";
    // The folder is not theirs, the file is.
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    EXPECT_EQ(refused("no file can be made in its folder: Permission denied"), 0);
    // The folder is theirs, the file is read-only.
    ASSERT_EQ(chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(refused("it may not be written to: Permission denied"), 0);
    EXPECT_TRUE(Contents(path) == before);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(SavedFile, SurvivesADiskThatFillsUpAtAnyPlace) {
    std::string const path = folder.File("m.nga");
    nga::SaveModel(*MakeModel(2), path);
    std::string const before = Contents(path);
    auto const model = MakeModel(200);
    nga::SaveModel(*model, folder.File("whole.nga"));
    auto const whole = static_cast<long long>(fs::file_size(folder.File("whole.nga")));
    fs::remove(folder.File("whole.nga"));
    for (long long limit = 0; limit < whole; limit += 7000) {
        EXPECT_EQ(InChild([&]() -> int {
                      signal(SIGXFSZ, SIG_IGN);
                      rlimit const most = {static_cast<rlim_t>(limit), static_cast<rlim_t>(limit)};
                      if (setrlimit(RLIMIT_FSIZE, &most) != 0) return 2;
                      std::string const cause = SaveRefusal(*model, path);
                      return cause.find("writing the database failed") == std::string::npos &&
                             cause.find("the disk is full") == std::string::npos;
                  }),
                  0)
            << limit;
        EXPECT_TRUE(Contents(path) == before);
        EXPECT_EQ(folder.Entries(), 1);
    }
}

TEST_F(SavedFile, IsWholeWhenTheSaverIsKilledAtAnyMoment) {
    std::string const path = folder.File("m.nga");
    auto const small = MakeModel(3);
    auto const large = MakeModel(400);
    // The moments spread over three rounds of saving, however fast this machine is.
    auto const begin = std::chrono::steady_clock::now();
    nga::SaveModel(*large, path);
    nga::SaveModel(*small, path);
    auto const round = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - begin);
    auto const moments = static_cast<unsigned>(3 * round.count());
    std::mt19937 random(7);
    int sizes[2] = {0, 0};
    for (int kills = 0; kills < 200; ++kills) {
        pid_t const child = fork();
        if (child == 0) {
            try {
                for (;;) {
                    nga::SaveModel(*large, path);
                    nga::SaveModel(*small, path);
                }
            } catch (...) {
            }
            _exit(1);
        }
        usleep(static_cast<useconds_t>(random() % moments));
        kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saver gave up";
        auto const loaded = nga::LoadModel(path);
        bool const isLarge = Materials(*loaded).Size() == 400;
        ASSERT_TRUE(SameMaterials(*loaded, isLarge ? *large : *small));
        ++sizes[isLarge];
        ASSERT_LE(folder.Entries(), 2) << "what a killed saver left goes with the next save";
    }
    EXPECT_GT(sizes[0], 0);
    EXPECT_GT(sizes[1], 0);
    nga::SaveModel(*small, path);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST_F(SavedFile, LeavesThePartOfALivingSaverAlone) {
    std::string const path = folder.File("m.nga");
    nga::SafeFile other(path);
    EXPECT_TRUE(fs::exists(other.PartPath()));
    { nga::SafeFile mine(path); }
    EXPECT_TRUE(fs::exists(other.PartPath()));
    EXPECT_EQ(folder.Entries(), 1);
}

}  // namespace
