#pragma once

#include <map>
#include <string>

#include "cls_ClassRegistrar.h"
#include "rfm_TableMetadata.h"

/// The layouts of tables at every version that old classes tell of, and the current ones.
class dbc_OldLayouts {
public:
    /// \p current outlives this.
    explicit dbc_OldLayouts(cls_ClassRegistrar const& current) : m_current(current) {}

    /// Enters a superseded layout. \p next is the version of the one after it, 0 where the class
    /// was retired.
    void Enter(rfm_TableMetadata const& layout, int next);

    /// The superseded layout of exactly that version; null if there is none.
    rfm_TableMetadata const* Old(unsigned typeId, int version) const;
    /// The one that registered classes have, or collections; null for an unknown class.
    rfm_TableMetadata const* Current(unsigned typeId);
    /// What a step to that version leaves: the layout that the next step finds, or the current one.
    rfm_TableMetadata const* After(unsigned typeId, int version);
    /// What tables of the class are made with at that version.
    rfm_TableMetadata const* InForce(unsigned typeId, int version);
    /// The number of a class by its name; 0 for an unknown one.
    unsigned TypeIdOf(cow_String const& name) const;
    /// For messages: a class's name, or its number where it is not known.
    std::string NameOf(unsigned typeId) const;

private:
    struct Superseded {
        rfm_TableMetadata layout;
        int next;
    };
    cls_ClassRegistrar const& m_current;
    std::map<unsigned, std::map<int, Superseded>> m_old;
    std::map<unsigned, rfm_TableMetadata> m_made;
};
