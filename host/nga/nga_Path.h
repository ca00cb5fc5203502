#pragma once

#include <string>
#include <string_view>

#include "mdl_Description.h"
#include "nga_Collection.h"
#include "nga_Document.h"

namespace nga {

// Paths as scripts write them: documents['bracket'].materials['steel'].options['elastic']. An
// optional object that a script reaches by a key has that key's step; all else is an attribute.

/// documents['NAME'].
std::string DocumentPath(std::string const& name);
std::string DocumentPath(Document const& document);
/// The path of an object, for one of whose document the path is given.
std::string EntryPath(std::string const& documentPath, Collection const& collection,
                      std::string_view key);
/// The step from an object to the value of one of its fields.
std::string FieldStep(mdl_Description const& owner, mdl_Field const& field);
/// The step from a list to one of its elements.
std::string IndexStep(int index);
/// The step from a repository or map to one of its entries.
std::string KeyStep(std::string_view key);

/// What a path leads to. It points into the document and is good until that changes.
struct Selection {
    enum class What {
        Document,
        Collection,
        Object,   ///< an object; field and at are those that hold it, if a field does
        Value,    ///< a field: a plain value, a list, a map, an array, or an absent option
        Row,      ///< row \p row of an array
        Cell,     ///< cell (row, column) of an array
        Element,  ///< element \p row of a list of plain values
        Factor    ///< the entry \p key of a map
    };

    What what = What::Document;
    std::string path;  ///< as FieldStep and its like write it
    /// The path of the named object that this is or lies in; empty above the objects.
    std::string entry;
    nga::Collection const* collection = nullptr;
    mdl_Description const* description = nullptr;  ///< of the object, or of the field's owner
    void const* object = nullptr;
    mdl_Description const* owner = nullptr;  ///< of the object that has the field
    mdl_Field const* field = nullptr;
    void const* at = nullptr;
    int row = 0;
    int column = 0;
    std::string key;
};

/// Follows a path in a document. The step to the document may be left out. Raises an Error that
/// names the step that leads nowhere, and names that are near it.
Selection Resolve(Document const& document, std::string_view path);

}  // namespace nga
