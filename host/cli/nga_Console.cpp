#include "nga_Console.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>

#include "nga_Error.h"

namespace nga {

namespace {

bool Coloured(int stream) {
    char const* const refused = std::getenv("NO_COLOR");
    char const* const terminal = std::getenv("TERM");
    if (refused && *refused) return false;
    if (terminal && std::strcmp(terminal, "dumb") == 0) return false;
    return isatty(stream) != 0;
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void FailFile(char const* what, std::string const& path, int cause) {
    throw Error(std::string(what) + ": " + std::strerror(cause), path);
}

// The store says of databases what is said here of texts, in the same words.
[[noreturn]] void FailRead(char const* what, std::string const& path, int cause) {
    if (cause == ENOENT) throw Error("there is no such file", path);
    if (cause == EISDIR) throw Error("this is a folder", path);
    FailFile(what, NameOfFile(path), cause);
}

}  // namespace

Console::Console()
    : m_colourOut(Coloured(1)), m_colourErr(Coloured(2)), m_showsProgress(Coloured(2)) {}

bool Console::OutIsTerminal() const { return isatty(1) != 0; }

void Console::Result(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void Console::Say(std::string const& text) {
    if (quiet) return;
    // Results come first where both streams lead to one place. A failure shows at Finish.
    std::fflush(stdout);
    std::fprintf(stderr, "%s\n", text.c_str());
}

void Console::Fail(std::string const& text) {
    std::fflush(stdout);
    std::fprintf(stderr, m_colourErr ? "\033[31mnga:\033[0m %s\n" : "nga: %s\n", text.c_str());
}

void Console::Explain(std::string const& text) {
    std::fflush(stdout);
    std::fputs(text.c_str(), stderr);
}

std::string Console::Strong(std::string const& text) const {
    return m_colourOut ? "\033[1m" + text + "\033[0m" : text;
}
std::string Console::Alarming(std::string const& text) const {
    return m_colourOut ? "\033[31m" + text + "\033[0m" : text;
}

void Console::Progress(std::string const& line) {
    std::fprintf(stderr, "\r\033[K%s", line.c_str());
    std::fflush(stderr);
}

void Console::Finish() {
    if (std::fflush(stdout) != 0) FailFile("cannot write", "the standard output", errno);
    if (std::ferror(stdout)) throw Error("cannot write", "the standard output");
}

std::string NameOfFile(std::string const& path) {
    return path == "-" ? "the standard input" : path;
}

std::string ReadText(std::string const& path) {
    File opened;
    std::FILE* file = stdin;
    if (path != "-") {
        opened.reset(std::fopen(path.c_str(), "rb"));
        if (!opened) FailRead("cannot open", path, errno);
        file = opened.get();
    }
    std::string text;
    char block[65536];
    while (std::size_t const count = std::fread(block, 1, sizeof block, file))
        text.append(block, count);
    if (std::ferror(file)) FailRead("cannot read", path, errno);
    return text;
}

namespace {

/// The file that is meant, behind any links, be it there or not.
std::string Followed(std::string const& path) {
    constexpr int mostLinks = 40;
    std::string target = path;
    for (int links = 0;; ++links) {
        std::error_code failure;
        std::filesystem::file_status const status =
            std::filesystem::symlink_status(target, failure);
        if (status.type() == std::filesystem::file_type::not_found) return target;
        if (failure) FailFile("cannot write", path, failure.value());
        if (!std::filesystem::is_symlink(status)) return target;
        if (links == mostLinks) FailFile("cannot write", path, ELOOP);
        std::filesystem::path const next = std::filesystem::read_symlink(target, failure);
        if (failure) FailFile("cannot write", path, failure.value());
        // An absolute one takes the place of the whole.
        target = (std::filesystem::path(target).parent_path() / next).string();
    }
}

}  // namespace

void WriteText(std::string const& path, std::string_view text) {
    std::string const target = Followed(path);
    std::error_code failure;
    std::filesystem::file_status const old = std::filesystem::status(target, failure);
    // What is no plain file (a pipe, a terminal) cannot be replaced; it takes what is written.
    if (std::filesystem::exists(old) && !std::filesystem::is_regular_file(old)) {
        File const file(std::fopen(target.c_str(), "wb"));
        if (!file) FailFile("cannot write", path, errno);
        if (std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
            std::fflush(file.get()) != 0)
            FailFile("cannot write", path, errno);
        return;
    }
    std::string beside = target + ".XXXXXX";
    int const descriptor = mkstemp(beside.data());
    if (descriptor < 0) FailFile("cannot write", path, errno);
    struct Litter {
        std::string const& path;
        bool gone = false;
        ~Litter() {
            if (!gone) unlink(path.c_str());
        }
    } litter{beside};
    {
        File const file(fdopen(descriptor, "wb"));
        if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
            std::fflush(file.get()) != 0 || fsync(descriptor) != 0)
            FailFile("cannot write", path, errno);
    }
    // A new file has the mode that the user's mask gives, not that of a secret.
    mode_t const mask = umask(0);
    umask(mask);
    std::filesystem::perms mode = std::filesystem::perms(0666u & ~mask);
    if (std::filesystem::exists(old)) mode = old.permissions();
    std::filesystem::permissions(beside, mode, failure);
    if (std::rename(beside.c_str(), target.c_str()) != 0) FailFile("cannot write", path, errno);
    litter.gone = true;
}

}  // namespace nga
