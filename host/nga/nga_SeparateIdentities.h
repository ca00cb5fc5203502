#pragma once

#include <vector>

#include "ddr_Model.h"

namespace nga {

/// An object of a described class, by its dynamic class.
struct TypedObject {
    unsigned typeId;
    void const* object;
};

/// A copy bears its source's identity until somebody changes that, and a store writes one identity
/// once: of two objects that were one and were then changed apart, it would keep one. So before a
/// save, this gives new identities, at every level down to base parts, tables and lists, to objects
/// that bear an identity which another object (another address) bears already. What is truly shared
/// is met at one address and stays one. Nothing is detached, and no change is recorded.
///
/// Returns how many identities were given. Costs one pass over the model, and a second one where
/// any identity is met more than once, be it only that an object is shared.
///
/// \p others are objects that stand in no model and are written with it; what both have, the model
/// keeps.
int SeparateIdentities(ddr_Model& model, std::vector<TypedObject> const& others = {});
/// The same for objects that are to be written together and stand in no model.
int SeparateIdentities(std::vector<TypedObject> const& objects);

}  // namespace nga
