#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mdl_Description.h"

namespace nga {

// The pieces that scripts are written of. Lines that do not fit are broken, with what is inside
// brackets set in behind \p indent.

/// A text as a literal that Python reads back byte for byte: a byte that is no UTF-8 is what the
/// surrogateescape handler makes of it.
std::string TextLiteral(std::string_view text);

/// A number from how JSON writes it, where the special ones are strings.
std::string NumberLiteral(std::string const& text);
std::string RealLiteral(double value);

/// Parts in brackets, on one line where they fit. One part of a tuple needs a comma behind it.
std::string InBrackets(char const* open, std::vector<std::string> const& parts, char const* close,
                       std::string const& indent);

/// What the class is called in scripts.
std::string ScriptClass(mdl_Description const& description);

/// The value of a field. \p usual is the field of an object as its constructor makes it, or null.
std::string ValueExpression(mdl_Description const& owner, mdl_Field const& field, void const* at,
                            void const* usual, std::string const& indent);

/// "name=value" for each field that differs from the class's default, but for those that \p leave
/// takes for itself; and what a constructor needs to let a broken object pass.
std::vector<std::string> ArgumentTexts(mdl_Description const& description, void const* object,
                                       std::string const& indent,
                                       std::function<bool(mdl_Field const&)> const& leave);

/// The expression that makes an equal object of no document.
std::string ObjectExpression(mdl_Description const& description, void const* object,
                             std::string const& indent);

}  // namespace nga
