#pragma once

#include <string_view>
#include <vector>

#include "mdl_Description.h"

namespace nga {

/// Whether a plain number has the value that stands for "not set": the largest double, the largest
/// int. False for a field of any other kind.
bool IsNotSet(mdl_Field const& field, void const* at);
/// Gives it that value; false for a field that is no plain number.
bool SetNotSet(mdl_Field const& field, void* at);

/// A literal that may be given in place of a field's number.
struct FieldLiteral {
    unsigned owner;  ///< the class whose line declares the field
    char const* script;
    char const* literal;
    double value;
};

/// The literal of what a field holds, or null: a value that stands for "not set" has none.
char const* LiteralOfValue(mdl_Field const& field, void const* at);

/// Those of one field. \p owner is the class that declares the field, or one below it.
std::vector<FieldLiteral const*> LiteralsOf(mdl_Description const& owner, mdl_Field const& field);

}  // namespace nga
