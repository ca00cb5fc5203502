#pragma once

#include <string>

#include "nga_Diff.h"
#include "nga_Document.h"

namespace nga {

/// What two documents differ in, for people or, as JSON, for programs. The names are those by which
/// the command line called them.
struct DiffReport {
    std::string text;
    int count = 0;
};
DiffReport ReportDiff(Document const& before, std::string const& beforeName, Document const& after,
                      std::string const& afterName, Tolerance const& tolerance, bool json);

}  // namespace nga
