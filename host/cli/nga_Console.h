#pragma once

#include <string>
#include <string_view>

namespace nga {

/// Where the tool's words go: results to the standard output, talk to the standard error. Colour
/// only where somebody looks, and never against NO_COLOR.
class Console {
public:
    Console();

    bool quiet = false;

    /// Whether somebody looks at the results.
    bool OutIsTerminal() const;

    /// A result, as it is.
    void Result(std::string_view text);
    /// What helps a person but is no result; left out when quiet.
    void Say(std::string const& text);
    /// Why the tool could not do it; never left out.
    void Fail(std::string const& text);
    /// Help for somebody who did not ask for it; never left out.
    void Explain(std::string const& text);
    /// A part of a result that shall stand out.
    std::string Strong(std::string const& text) const;
    std::string Alarming(std::string const& text) const;

    /// Raises an Error if the results did not get out, as on a full disk.
    void Finish();

private:
    bool m_colourOut;
    bool m_colourErr;
};

/// How messages call a file that the command line names.
std::string NameOfFile(std::string const& path);
/// The whole of a file, or of the standard input for "-".
std::string ReadText(std::string const& path);
/// Puts a text in the place of a file: whole, or the file stays as it was.
void WriteText(std::string const& path, std::string_view text);

}  // namespace nga
