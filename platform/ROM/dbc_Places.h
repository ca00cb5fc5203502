#pragma once

#include <vector>

#include "rfm_FieldHandle.h"
#include "rfm_TableMetadata.h"

/// Where a handle's column stands, found once for a table: in the row itself, or in the row of the
/// step's input from which it is carried.
class dbc_Places {
public:
    enum Where : signed char { Unresolved, None, Own, Former };
    struct Place {
        Where where = Unresolved;
        int column = -1;
    };

    /// \p former may be null. Both layouts outlive this.
    dbc_Places(rfm_TableMetadata const& own, rfm_TableMetadata const* former);

    Place Of(rfm_FieldHandle const& field) {
        auto const number = static_cast<std::size_t>(field.Number());
        if (number < m_places.size() && m_places[number].where != Unresolved)
            return m_places[number];
        return Resolve(field);
    }
    /// For the bare name of an object field: the column of its number of row.
    Place OfReference(rfm_FieldHandle const& field);

    /// For each column of the row itself: that of the former row which it is carried from, or -1.
    std::vector<int> const& CarriedFrom() const { return m_carriedFrom; }
    /// The columns of the former row that the row itself lacks.
    std::vector<int> const& Dropped() const { return m_dropped; }
    rfm_TableMetadata const& OwnLayout() const { return m_own; }
    rfm_TableMetadata const* FormerLayout() const { return m_former; }

private:
    Place Resolve(rfm_FieldHandle const& field);
    Place Find(cow_String const& name) const;

    rfm_TableMetadata const& m_own;
    rfm_TableMetadata const* m_former;
    std::vector<Place> m_places;
    std::vector<Place> m_references;
    std::vector<int> m_carriedFrom;
    std::vector<int> m_dropped;
};
