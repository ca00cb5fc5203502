#pragma once

#include <stdexcept>
#include <string>

namespace nga {

/// What the host fails with. It says what is wrong, where (a file, a path in a text, a path in a
/// document), and what was expected, each apart for a caller that shows them its own way; what() is
/// the whole in one line.
class Error : public std::runtime_error {
public:
    explicit Error(std::string const& message, std::string const& place = std::string(),
                   int line = 0, std::string const& expected = std::string());

    std::string const& Message() const { return m_message; }
    /// Empty where there is none.
    std::string const& Place() const { return m_place; }
    /// The line of the text, from 1; 0 where there is none.
    int Line() const { return m_line; }
    std::string const& Expected() const { return m_expected; }

private:
    std::string m_message;
    std::string m_place;
    int m_line;
    std::string m_expected;
};

}  // namespace nga
