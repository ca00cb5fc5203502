#pragma once

#include <string>
#include <vector>

#include "mdl_Description.h"

namespace nga {

// What scripts and comparisons do with the fields of described objects.

/// Gives a field the content of the same field of another object. What can be shared is shared;
/// records that the field itself is keep their identity.
void CopyField(mdl_Field const& field, void const* from, void* to);

/// The name of the script-side constructor that sets an option of its owner, or appends to a list:
/// that of the class where one field alone holds the class, else the field's name with a capital.
/// Empty where there is none: for other fields, and where the class is known only at run time.
std::string ConstructorOf(mdl_Description const& owner, mdl_Field const& field);

/// The classes whose constructors, by their own names, append to a list of an abstract class; none
/// where several fields of the owner could be meant.
std::vector<mdl_Description const*> ClassesToAppend(mdl_Description const& owner,
                                                    mdl_Field const& field);

}  // namespace nga
