#pragma once

#include <pybind11/pybind11.h>

#include "mdl_Description.h"

namespace nga::python {

/// The class of this number; raises ValueError where there is none.
mdl_Description const& DescriptionAt(unsigned typeId);

/// Puts the functions into the module that tell the registered classes, collections and rules.
void DefineFacts(pybind11::module_& module);

}  // namespace nga::python
