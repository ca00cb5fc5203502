#pragma once

#include "nga_PyFieldData.h"

// Objects of some classes hold objects of their own class, so a script can nest them without end,
// and what walks through them would run out of stack; nor could they be saved. What is put into
// another object is held to the levels that texts have: each object is one, and each list.

namespace nga::python {

/// Of an object in a collection: the document, the collection and itself.
constexpr int levelOfNamed = 3;

/// The level on which the object of a handle stands.
int LevelOf(Object* object);
/// How many levels deeper the objects of a field stand.
int StepsTo(mdl_Field const& field);

/// Raises ValueError if an object on this level reaches deeper than texts do. Costs little for
/// classes that cannot hold themselves.
void RequireDepth(std::string const& place, mdl_Description const& description, void const* object,
                  int level);
/// The same for what is to be put into a field of an object on this level.
void RequireDepth(mdl_Description const& owner, mdl_Field const& field, FieldValue const& value,
                  int level);

}  // namespace nga::python
