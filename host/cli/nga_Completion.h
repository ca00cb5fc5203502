#pragma once

#include <string>

namespace CLI {
class App;
}

namespace nga {

/// The script that completes the tool's command line in a shell: bash, zsh or fish. Made from the
/// verbs and options themselves.
std::string CompletionScript(CLI::App& tool, std::string const& shell);

}  // namespace nga
