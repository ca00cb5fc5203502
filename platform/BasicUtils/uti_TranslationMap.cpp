#include "uti_TranslationMap.h"

void uti_TranslationMap::Insert(unsigned typeId, atr_String const& label, cow_String const& key) {
    if (!m_labels.Insert(typeId, label)) return;
    m_keys.Insert(typeId, key);
    m_typeIds.Append(typeId);
}

atr_String uti_TranslationMap::Label(unsigned typeId) const {
    atr_String const* label = m_labels.ConstFind(typeId);
    return label ? *label : atr_String();
}

cow_String uti_TranslationMap::Key(unsigned typeId) const {
    cow_String const* key = m_keys.ConstFind(typeId);
    return key ? *key : cow_String();
}
