#pragma once

#include <string>
#include <vector>

/// What a run of the tool gave.
struct ToolRun {
    int code = -1;  ///< 128 and above: ended by a signal
    std::string out;
    std::string err;
};

/// Runs the built tool with these arguments, no terminal, and \p input on its standard input.
ToolRun RunNga(std::vector<std::string> const& arguments, std::string const& input = std::string());

/// A folder of its own for one test, which goes with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    std::string Path(std::string const& name) const { return m_path + "/" + name; }
    /// Writes a file of this name and returns its path.
    std::string Write(std::string const& name, std::string const& content) const;

private:
    std::string m_path;
};

std::string FileContent(std::string const& path);
