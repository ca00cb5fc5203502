#pragma once

#include <string>
#include <vector>

#include "dbc_UpgradeReport.h"
#include "rfm_Database.h"

namespace nga {

/// Objects that got a name.
struct Adopted {
    std::string className;
    long long rows = 0;
    std::string collection;  ///< "sections"
    std::string name;        ///< in it; of several, the first
};

/// Gives names to objects of an upgraded database that none leads to, where this document has a
/// place for their kind: behaviours of connectors come together in one section, each load case
/// gets a name of its own. Programs of old kept what referred to them elsewhere. Takes what got a
/// name out of the list; the others stay in it, and with them what cannot be read, or could get its
/// name only into a damaged list of names.
///
/// New rows have identities that follow from what they hold, so that an upgrade gives the same file
/// whenever it runs.
std::vector<Adopted> Adopt(rfm_Database& database, dbc_References& references);

}  // namespace nga
