#pragma once

#include <string>
#include <string_view>
#include <vector>

class cls_ClassMetadata;

namespace nga {

/// The classes of a model's database by rising TypeId, as they are registered.
std::vector<cls_ClassMetadata const*> SchemaClasses();
/// Those that somebody means by a persistent name, a script constructor (which two classes may
/// share) or a TypeId in hexadecimal. Raises an Error with near names if there is none.
std::vector<cls_ClassMetadata const*> SchemaClasses(std::string_view name);

/// Names, numbers, versions, parents and fields with their codes, script names, literals and
/// defaults.
std::string SchemaText(std::vector<cls_ClassMetadata const*> const& classes);
std::string SchemaJson(std::vector<cls_ClassMetadata const*> const& classes);

}  // namespace nga
