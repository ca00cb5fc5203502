#include "dbc_Places.h"

namespace {

// Entries of lists and maps are known to conversions by these names.
cow_String StoredName(cow_String const& name) {
    if (name == "ClassID") return cow_String("value#ClassID");
    if (name == "OID") return cow_String("value#OID");
    if (name == "Key") return cow_String("key");
    return name;
}

}  // namespace

dbc_Places::dbc_Places(rfm_TableMetadata const& own, rfm_TableMetadata const* former)
    : m_own(own), m_former(former) {
    m_carriedFrom.assign(own.Columns().size(), -1);
    if (!former) return;
    for (int i = 0; i < former->ColumnCount(); ++i) {
        rfm_Column const& column = former->Columns()[static_cast<std::size_t>(i)];
        int const place = own.Find(column.name);
        // A field of the same name and another kind is another field.
        if (place >= 0 && own.Columns()[static_cast<std::size_t>(place)].kind == column.kind)
            m_carriedFrom[static_cast<std::size_t>(place)] = i;
        else
            m_dropped.push_back(i);
    }
}

dbc_Places::Place dbc_Places::Find(cow_String const& name) const {
    int const own = m_own.Find(name);
    if (own >= 0) return {Own, own};
    int const former = m_former ? m_former->Find(name) : -1;
    if (former >= 0) return {Former, former};
    return {None, -1};
}

dbc_Places::Place dbc_Places::Resolve(rfm_FieldHandle const& field) {
    auto const number = static_cast<std::size_t>(field.Number());
    if (number >= m_places.size()) m_places.resize(number + 1);
    Place& place = m_places[number];
    cow_String const name(field.Name());
    int const index = field.Index();
    if (index >= 0 && index < m_own.ColumnCount() &&
        m_own.Columns()[static_cast<std::size_t>(index)].name == name) {
        place = {Own, index};
        return place;
    }
    place = Find(name);
    if (place.where == None) place = Find(StoredName(name));
    return place;
}

dbc_Places::Place dbc_Places::OfReference(rfm_FieldHandle const& field) {
    auto const number = static_cast<std::size_t>(field.Number());
    if (number >= m_references.size()) m_references.resize(number + 1);
    Place& place = m_references[number];
    if (place.where == Unresolved) place = Find(cow_String(field.Name()) + cow_String("#OID"));
    return place;
}
