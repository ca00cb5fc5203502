#pragma once

#include <string>
#include <vector>

#include "nga_Check.h"
#include "nga_JsonWriter.h"

namespace nga {

/// The code of a finding with its module before it, "kma 3: "; empty where it has none.
std::string CodeText(Finding const& finding);
/// A list of findings under a key of an object that is being written.
void AddFindings(JsonWriter& writer, char const* key, std::vector<Finding> const& findings);

}  // namespace nga
