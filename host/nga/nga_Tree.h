#pragma once

#include <string>
#include <vector>

#include "nga_Document.h"
#include "nga_Path.h"

namespace nga {

/// One object in a document. Its path is the path of its owner with its step behind it.
struct TreeNode {
    std::string step;
    std::string className;  ///< persistent name; empty for a document or a collection
    std::string summary;    ///< what is worth a glance: literals and sizes
    std::vector<TreeNode> children;
};

/// The objects at and below a selection of Document, Collection or Object.
TreeNode BuildTree(Document const& document, Selection const& from);

/// One object a line, indented; with \p paths its whole path instead.
std::string TreeText(TreeNode const& root, bool paths);
std::string TreeJson(TreeNode const& root);

/// What a selection holds: an object with all its fields, a collection's names, or a value. With
/// \p brief, of a long list or table among the fields the first and the last elements.
std::string ShowText(Document const& document, Selection const& selection, bool brief = false);
std::string ShowJson(Document const& document, Selection const& selection);

/// A field's value in one line, for people: "not set" for the values that mean that.
std::string ValueText(mdl_Field const& field, void const* at);

}  // namespace nga
