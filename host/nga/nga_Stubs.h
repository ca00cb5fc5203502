#pragma once

#include <string>

namespace nga {

/// The type stub of what the Python package makes from the metadata: its classes with their fields
/// and constructors, the constructors and collections of documents, and the literals.
std::string StubText();

}  // namespace nga
