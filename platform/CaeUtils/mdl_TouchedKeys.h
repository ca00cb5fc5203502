#pragma once

#include "cow_List.h"
#include "cow_String.h"

/// When something last changed, and which keys were touched, each once in the order of their first
/// touch. A touch only notes the key; repetitions are taken out when the keys are asked for, and
/// before they outnumber the rest, so that a touch costs the same at any size. The keys are
/// copy-on-write, and so is a copy's cost.
class mdl_TouchedKeys {
public:
    mdl_TouchedKeys();

    /// Takes the time; the empty key is none.
    void Touch(cow_String const& key);
    double Time() const { return m_time; }
    /// Good until the next touch.
    cow_List<cow_String> const& Keys() const;

private:
    void Settle() const;

    double m_time;
    mutable cow_List<cow_String> m_keys;
    mutable int m_settled = 0;  ///< so many from the first on are each once
};
