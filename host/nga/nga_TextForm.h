#pragma once

#include <map>
#include <memory>
#include <string>

#include "mdl_Description.h"
#include "nga_Budget.h"
#include "nga_JsonTree.h"
#include "nga_JsonWriter.h"

namespace nga {

// The text form of described objects: script names, literals in capitals, and only what differs
// from the class's defaults. Tables are arrays of rows. One engine over the descriptions serves
// every class; nothing here knows a class by name.

/// Ends an object of a described class whose class is known only at run time.
struct DescribedDeleter {
    mdl_Description const* description = nullptr;
    void operator()(void* object) const {
        if (object) description->Destroy(object);
    }
};
using DescribedObject = std::unique_ptr<void, DescribedDeleter>;

/// One object of each class as its constructor makes it, for comparisons: made when first asked
/// for, and gone with this.
class Defaults {
public:
    /// For texts of so many named objects.
    explicit Defaults(int named = 0) : budget(named) {}
    void const* Of(mdl_Description const& description);
    /// ClassText, remembered: a list may hold a million objects of one class.
    std::string const& ClassOf(mdl_Description const& description, mdl_Description const& declared);

    Budget budget;

private:
    std::map<unsigned, DescribedObject> m_objects;
    std::map<std::pair<unsigned, unsigned>, std::string> m_classes;
};

/// Whether the class is a table: an array of cells that scripts know by its owner's field, with
/// perhaps some flags. Its text is its rows.
bool IsTable(mdl_Description const& description);
/// The array of such a class.
mdl_Field const& CellsOf(mdl_Description const& table);

/// What a class is called under "class" where the declared class does not tell it: its constructor,
/// or its persistent name if another class below \p declared bears the same constructor.
std::string ClassText(mdl_Description const& description, mdl_Description const& declared);

/// Writes an object: the fields that differ from those of \p usual, an object of its class, and the
/// class unless it is the declared one.
void WriteObject(JsonWriter& writer, Defaults& defaults, mdl_Description const& declared,
                 mdl_Description const& description, void const* object, void const* usual);
/// Writes one field's value, whole.
void WriteField(JsonWriter& writer, Defaults& defaults, mdl_Field const& field, void const* at,
                void const* usual);

/// A new object from its text, of the declared class or one below it; the caller owns it. Raises an
/// Error that names place, line and what was expected.
DescribedObject ReadObject(JsonNode const& node, JsonPlace const& place,
                           mdl_Description const& declared);

/// The names of all fields that a script can give, for messages.
std::vector<std::string> ScriptNames(mdl_Description const& description);

/// A class and what it is called in a place that can hold several.
struct NamedClass {
    mdl_Description const* description;
    std::string text;
};
/// All concrete classes that a place of the declared class can hold. Good until the next call.
std::vector<NamedClass> const& ClassesBelow(mdl_Description const& declared);

}  // namespace nga
