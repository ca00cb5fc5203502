#pragma once

#include "atr_String.h"
#include "cow_List.h"
#include "cow_Map.h"
#include "cow_String.h"

/// What dialogs call the classes of a family: a label, in the language of the user, and a key,
/// which is the same in every language; in the order in which they were entered.
class uti_TranslationMap {
public:
    /// A class that is there keeps its place, label and key.
    void Insert(unsigned typeId, atr_String const& label, cow_String const& key);

    /// Empty for a class that is not there.
    atr_String Label(unsigned typeId) const;
    cow_String Key(unsigned typeId) const;
    cow_List<unsigned> const& TypeIds() const { return m_typeIds; }

private:
    cow_Map<unsigned, atr_String> m_labels;
    cow_Map<unsigned, cow_String> m_keys;
    cow_List<unsigned> m_typeIds;
};
