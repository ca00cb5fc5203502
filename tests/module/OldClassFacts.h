#pragma once

#include <string>

#include "support/OldDatabase.h"

namespace old_test {

/// A superseded layout as the tables of facts have it.
struct OldClassFact {
    char const* oldName;
    char const* name;
    unsigned typeId;
    int version;
    unsigned parent;
    unsigned mask;
    int next;
    bool convert;
    bool finalize;
    char const* newName;
    char const* fields;
};

inline constexpr OldClassFact facts[] = {
#define OLD_CLASS(...) {__VA_ARGS__},
#include "module/old_classes.inc"
#undef OLD_CLASS
};

/// The table of an old class, by its name and version: "kmaC_Plastic_419".
inline rfm_TableMetadata OldLayout(std::string const& oldName) {
    for (OldClassFact const& fact : facts)
        if (oldName == fact.oldName)
            return Layout(fact.typeId, fact.name, fact.version, fact.parent, fact.fields);
    throw std::logic_error("there was no " + oldName);
}

}  // namespace old_test
