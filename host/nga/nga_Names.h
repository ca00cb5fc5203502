#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nga {

/// Names that are made through the host must survive every place where a name is shown between
/// quotes: a quote, a backslash or a control character in a name, or an empty name, is refused with
/// an Error about \p owner ("the document", or a path).
void RequireName(std::string_view name, std::string const& owner, int line = 0);

/// Whether RequireName() would let it pass.
bool IsUsableName(std::string_view name);

/// The names among \p known that somebody may have meant by \p given, nearest first, at most three.
std::vector<std::string> NearNames(std::string_view given, std::vector<std::string> const& known);
/// " (did you mean 'elastic'?)", or nothing.
std::string DidYouMean(std::string_view given, std::vector<std::string> const& known);
/// What was expected: "a", "b" or "c", in double quotes.
std::string Choice(std::vector<std::string> const& known);

/// A text between single quotes as a path shows it. Quotes, backslashes and control characters are
/// escaped, and so is each byte that is no UTF-8, so that the result can always be printed and
/// typed back.
std::string Quoted(std::string_view text);

/// A text as it is, but for what cannot be printed anywhere, which is escaped: control characters
/// and bytes that are no UTF-8. Lines behind the first are set in.
std::string Printable(std::string_view text);

/// The length of the UTF-8 character at the start of \p text, or 0 if the bytes there are none.
int Utf8Length(std::string_view text);

/// "1 row", "3 rows".
std::string Counted(long long count, char const* what);

}  // namespace nga
