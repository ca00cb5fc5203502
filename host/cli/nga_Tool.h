#pragma once

namespace nga {

// Exit codes of the tool.
inline constexpr int exitFine = 0;
inline constexpr int exitFindings = 1;
inline constexpr int exitFailure = 2;

/// The tool: takes the command line, does one verb, and returns the exit code. Lets nothing out but
/// what it cannot catch.
int RunTool(int argc, char const* const* argv);

}  // namespace nga
