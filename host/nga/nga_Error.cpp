#include "nga_Error.h"

namespace nga {

namespace {

std::string Whole(std::string const& message, std::string const& place, int line,
                  std::string const& expected) {
    std::string whole;
    if (line > 0) whole += "line " + std::to_string(line) + ": ";
    if (!place.empty()) whole += place + ": ";
    whole += message;
    if (!expected.empty()) whole += "; expected " + expected;
    return whole;
}

}  // namespace

Error::Error(std::string const& message, std::string const& place, int line,
             std::string const& expected)
    : std::runtime_error(Whole(message, place, line, expected)),
      m_message(message),
      m_place(place),
      m_line(line),
      m_expected(expected) {}

}  // namespace nga
