#pragma once

#include "cow_Btree.h"
#include "cow_List.h"
#include "cow_String.h"

/// When something last changed, and which keys were touched, each once in the order of their first
/// touch. The list alone would be searched from end to end for every key, so an index stands
/// beside it; both are copy-on-write, and a copy costs the same at any size.
class mdl_TouchedKeys {
public:
    mdl_TouchedKeys();

    /// Takes the time; the empty key is none.
    void Touch(cow_String const& key);
    double Time() const { return m_time; }
    cow_List<cow_String> const& Keys() const { return m_keys; }

private:
    double m_time;
    cow_List<cow_String> m_keys;
    cow_Btree<cow_String, bool> m_index;
};
