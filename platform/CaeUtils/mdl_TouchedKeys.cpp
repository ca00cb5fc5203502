#include "mdl_TouchedKeys.h"

#include "omi_Time.h"

mdl_TouchedKeys::mdl_TouchedKeys() : m_time(omi_gettimecounter()) {}

void mdl_TouchedKeys::Touch(cow_String const& key) {
    m_time = omi_gettimecounter();
    if (!key.IsEmpty() && m_index.InsertUnlessMember(key, true)) m_keys.Append(key);
}
