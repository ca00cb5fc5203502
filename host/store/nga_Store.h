#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cow_ErasedHandle.h"
#include "ddr_Model.h"
#include "nga_FileStamp.h"
#include "nga_StoreError.h"

namespace nga {

/// How a model is saved.
struct SaveOptions {
    /// The state in which the file under the path must be found; in any other, nothing is saved.
    /// Without it, whatever stands there is replaced.
    std::optional<FileStamp> expected;
    /// Says of an extension that is no repository whether it is to be left out; by default, none
    /// is. Repositories are left out when they are empty.
    bool (*isEmpty)(mdl_Extension const& extension) = nullptr;
};

// All of these raise StoreError, which names the file and the cause; std::bad_alloc when memory is
// exhausted. A file is in no case changed in place.

/// Writes the model's extensions to a file, which is the whole old one or the whole new one at
/// every instant. Gives the state of the new file.
FileStamp SaveModel(ddr_Model const& model, std::string const& path,
                    SaveOptions const& options = {});

/// Reads a file into a new model, which bears the given name, or that of the file without folder
/// and extension.
std::unique_ptr<ddr_Model> LoadModel(std::string const& path, FileStamp* stamp = nullptr,
                                     std::string const& name = {});

/// A named object that cannot be read.
struct UnreadableObject {
    std::string collection;  ///< "materials"
    std::string name;
    std::string cause;
};
/// A named object that can be read, as it stands in its collection.
using ReadableObject = std::function<void(std::string const& collection, std::string const& name,
                                          unsigned typeId, void const* object)>;
/// Reads every named object of a file by itself and lists those that fail; hands over the others,
/// each for the time of the call.
std::vector<UnreadableObject> FindUnreadable(std::string const& path,
                                             ReadableObject const& readable = {});

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
