#include "mdl_TouchedKeys.h"

#include <unordered_set>

#include "omi_Time.h"

mdl_TouchedKeys::mdl_TouchedKeys() : m_time(omi_gettimecounter()) {}

void mdl_TouchedKeys::Touch(cow_String const& key) {
    m_time = omi_gettimecounter();
    if (key.IsEmpty() || (m_keys.Size() > 0 && m_keys.Last() == key)) return;
    m_keys.Append(key);
    if (m_keys.Size() > 2 * m_settled + 64) Settle();
}

cow_List<cow_String> const& mdl_TouchedKeys::Keys() const {
    Settle();
    return m_keys;
}

void mdl_TouchedKeys::Settle() const {
    int const size = m_keys.Size();
    if (m_settled == size) return;
    std::unordered_set<cow_String, cow_StringHash> seen;
    seen.reserve(static_cast<std::size_t>(size));
    cow_List<cow_String> distinct(cow_ListConstruct(), size);
    for (int i = 0; i < size; ++i) {
        cow_String const& key = m_keys.UncheckedConstGet(i);
        if (seen.insert(key).second) distinct.Append(key);
    }
    m_keys = distinct;
    m_settled = m_keys.Size();
}
