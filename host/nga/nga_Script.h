#pragma once

#include <string>

#include "nga_Document.h"
#include "nga_History.h"

namespace nga {

/// The expression that opens a document as it is now, or makes it, if it is new and empty. Asked
/// when a history begins, since the file may change and be changed for another.
std::string ScriptOpening(Document const& document);

/// The Python script that does once more what was done and not undone since the history began: one
/// statement for each field that differs in the end, in the order of the edits, with the reason of
/// an edit as a comment above its part. Run on a document as it was then, which \p opening gives,
/// it gives an equal one.
std::string ScriptText(std::string const& opening, History const& history);

/// The same without the lines that open the document: a script over the variable doc.
std::string ScriptBody(History const& history);

/// One value as a script writes it, for a field of an object.
std::string ScriptValue(mdl_Description const& owner, mdl_Field const& field, void const* at);

/// The expression that makes an equal object, or null's.
std::string ScriptObject(mdl_Description const& description, void const* object);

}  // namespace nga
