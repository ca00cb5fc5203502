#pragma once

#include <string>
#include <vector>

#include "nga_Collection.h"
#include "nga_Document.h"

namespace nga {

/// One object that breaks a rule of its class.
struct Finding {
    std::string path;
    /// Prefix of the module whose code it is, with " content" behind it for a code of the module's
    /// texts that name something; empty for a failure without one.
    std::string module;
    int code = -1;
    std::string message;
    /// Whether no owner asks the object, so that nothing is invalid because of it.
    bool note = false;
};

/// How far a check goes.
enum class CheckDepth {
    Asked,  ///< what the classes ask
    All     ///< also what they hold without asking it; failures there are notes
};

/// Asks every named object of the document, as AssertValid() would, but goes on behind a failure:
/// lists each object's first own failed rule, and before it a name that its kind does not allow.
/// What a class does not ask is not followed, unless that is wanted.
std::vector<Finding> Check(Document const& document, CheckDepth depth = CheckDepth::Asked);
/// The same for one object of a described class, known by that path.
std::vector<Finding> Check(mdl_Description const& description, void const* object,
                           std::string const& path, CheckDepth depth = CheckDepth::Asked);

/// The same for what a collection holds under a name, with the name itself.
std::vector<Finding> Check(Collection const& collection, std::string const& name,
                           void const* object, std::string const& path,
                           CheckDepth depth = CheckDepth::Asked);

/// The message of the first rule that an object of a described class breaks, in one line; empty if
/// it is valid.
std::string BrokenRule(mdl_Description const& description, void const* object);

/// The paths of what a document holds under a name that no import lets pass, by name of an object
/// or of a map's entry: only a file or a program can have brought it in.
std::vector<std::string> UnusableNames(Document const& document);

}  // namespace nga
