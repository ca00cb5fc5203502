#include "tool_runner.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

extern char** environ;

TemporaryFolder::TemporaryFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "nga_XXXXXX").string();
    if (!mkdtemp(path.data())) throw std::runtime_error("cannot make " + path);
    m_path = path;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string TemporaryFolder::Write(std::string const& name, std::string const& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
}

std::string FileContent(std::string const& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

ToolRun RunNga(std::vector<std::string> const& arguments, std::string const& input) {
    // Files rather than pipes: whatever the order in which the tool reads and writes, nobody waits.
    TemporaryFolder const folder;
    folder.Write("in", input);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, folder.Path("in").c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, folder.Path("out").c_str(), O_WRONLY | O_CREAT,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, 2, folder.Path("err").c_str(), O_WRONLY | O_CREAT,
                                     0600);
    std::vector<char*> argv = {const_cast<char*>(NGA_TOOL)};
    for (std::string const& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    pid_t child = 0;
    int const failure = posix_spawn(&child, NGA_TOOL, &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) throw std::runtime_error("cannot start " NGA_TOOL);
    int status = 0;
    waitpid(child, &status, 0);
    ToolRun run;
    run.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    run.out = FileContent(folder.Path("out"));
    run.err = FileContent(folder.Path("err"));
    return run;
}
