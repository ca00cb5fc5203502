#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nga_Document.h"
#include "nga_History.h"

namespace nga {

/// The highest schema number that this host knows: that of the files that it writes.
inline constexpr int schemaNumber = 1111;

/// What an import does with a name that the document has already.
enum class OnConflict {
    Error,    ///< refuses the whole import
    Replace,  ///< the text's object takes the place of the document's
    Keep      ///< the document's object stays, the text's is left out
};

/// What became of the objects of one collection.
struct Imported {
    std::string collection;
    int added = 0;
    int replaced = 0;
    int kept = 0;
};

/// The text form of a whole document. Importing it into a new document gives the same document
/// again, and exporting that gives the same text. Raises an Error with the path of an object that
/// no import could bring back: under a name that cannot be used, nested too deep, or missing.
std::string ExportJson(Document const& document);

/// Puts the objects of a text into a document, in the order of the text, through its repositories,
/// which send their change records. An import that fails leaves the document as it was.
std::vector<Imported> ImportJson(Document& document, std::string_view text,
                                 OnConflict onConflict = OnConflict::Error);

/// The same as one step of a history.
std::vector<Imported> ImportRecorded(Document& document, History& history, std::string_view text,
                                     OnConflict onConflict = OnConflict::Error);

}  // namespace nga
