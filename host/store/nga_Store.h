#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cow_ErasedHandle.h"
#include "dbc_UpgradeReport.h"
#include "ddr_Model.h"
#include "nga_FileStamp.h"
#include "nga_StoreError.h"

namespace nga {

/// Objects of a file that no name leads to: a program put them down and lost sight of them, or an
/// upgrade found nobody who refers to them. They are kept as they came.
struct Leftovers {
    struct Object {
        unsigned typeId;
        cow_ErasedHandle object;
    };
    std::vector<Object> objects;
    /// Those that cannot be read, each with its place and cause.
    std::vector<std::string> unreadable;
};

/// How a model is saved.
struct SaveOptions {
    /// The state in which the file under the path must be found; in any other, nothing is saved.
    /// Without it, whatever stands there is replaced.
    std::optional<FileStamp> expected;
    /// Says of an extension that is no repository whether it is to be left out; by default, none
    /// is. Repositories are left out when they are empty.
    bool (*isEmpty)(mdl_Extension const& extension) = nullptr;
    /// Written behind the model.
    Leftovers const* leftovers = nullptr;
};

// All of these raise StoreError, which names the file and the cause; std::bad_alloc when memory is
// exhausted. A file is in no case changed in place.

/// Writes the model's extensions to a file, which is the whole old one or the whole new one at
/// every instant. Gives the state of the new file.
FileStamp SaveModel(ddr_Model const& model, std::string const& path,
                    SaveOptions const& options = {});

/// Reads a file into a new model, which bears the name of the file without folder and extension.
std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp* stamp = nullptr,
                                     Leftovers* leftovers = nullptr);

/// An object that cannot be read.
struct UnreadableObject {
    std::string collection;  ///< "materials"; empty for one that has no name
    std::string name;
    std::string cause;
};
/// A named object that can be read, as it stands in its collection.
using ReadableObject = std::function<void(std::string const& collection, std::string const& name,
                                          unsigned typeId, void const* object)>;
/// Reads every object of a file by itself and lists those that fail; hands over the named ones that
/// do not, each for the time of the call. Raises what keeps the file from being read otherwise.
/// Objects without a name are read where they are listed. Memory does not grow with the number of
/// objects.
std::vector<UnreadableObject> FindUnreadable(
    std::string const& path, ReadableObject const& readable = {},
    std::vector<dbc_UnreferencedReport> const& unreferenced = {});

/// Reads one object of a repository by its name, and what it refers to, and nothing else. A handle
/// on nothing if there is no object of the name.
cow_ErasedHandle ReadNamed(std::string const& path, cow_String const& repository,
                           cow_String const& name, unsigned elementTypeId);

/// What a file says of itself in its first bytes; raises if it is none of ours.
struct FileFacts {
    int schema;
    std::string writer;
};
FileFacts ReadFacts(std::string const& path);

}  // namespace nga
