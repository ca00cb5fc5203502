#pragma once

#include <string>
#include <vector>

#include "nga_Document.h"

namespace nga {

/// One object that breaks a rule of its class.
struct Finding {
    std::string path;
    std::string module;  ///< prefix of the module whose code it is; empty for a failure without one
    int code = -1;
    std::string message;
};

/// Asks every named object of the document, as AssertValid() would, but goes on behind a failure:
/// lists each object's first own failed rule. What a class does not ask is not followed.
std::vector<Finding> Check(Document const& document);

}  // namespace nga
