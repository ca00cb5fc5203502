#pragma once

#include <string>
#include <vector>

class cls_ClassMetadata;

namespace nga {

/// A page in Markdown on these classes: for each its fields with type, default, literals and the
/// name of the constructor that fills them, where it stands in other classes, and its rules.
std::string ReferencePage(std::vector<cls_ClassMetadata const*> const& classes);

}  // namespace nga
