#pragma once

#include <stdexcept>
#include <string>

namespace nga {

/// What went wrong with a file: which one, and why.
class StoreError : public std::runtime_error {
public:
    StoreError(std::string const& path, std::string const& cause)
        : std::runtime_error(path + ": " + cause), m_path(path), m_cause(cause) {}

    std::string const& Path() const { return m_path; }
    std::string const& Cause() const { return m_cause; }

private:
    std::string m_path;
    std::string m_cause;
};

}  // namespace nga
