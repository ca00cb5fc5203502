#include "dbc_OldLayouts.h"

#include "cls_Codes.h"
#include "rom_Transporter.h"

void dbc_OldLayouts::Enter(rfm_TableMetadata const& layout, int next) {
    m_old[layout.TypeId()].insert_or_assign(layout.Version(), Superseded{layout, next});
}

rfm_TableMetadata const* dbc_OldLayouts::Old(unsigned typeId, int version) const {
    auto const known = m_old.find(typeId);
    if (known == m_old.end()) return nullptr;
    auto const found = known->second.find(version);
    return found == known->second.end() ? nullptr : &found->second.layout;
}

rfm_TableMetadata const* dbc_OldLayouts::Current(unsigned typeId) {
    auto const made = m_made.find(typeId);
    if (made != m_made.end()) return &made->second;
    bool const collection = typeId == cls_ListTypeId || typeId == cls_MapTypeId ||
                            typeId == rom_Layout::listEntryTypeId ||
                            typeId == rom_Layout::mapEntryTypeId;
    if (!collection && !m_current.Find(typeId)) return nullptr;
    return &m_made.emplace(typeId, rom_Layout::OfType(typeId, m_current)).first->second;
}

rfm_TableMetadata const* dbc_OldLayouts::After(unsigned typeId, int version) {
    if (rfm_TableMetadata const* old = Old(typeId, version)) return old;
    return Current(typeId);
}

rfm_TableMetadata const* dbc_OldLayouts::InForce(unsigned typeId, int version) {
    auto const known = m_old.find(typeId);
    if (known != m_old.end())
        for (auto const& [from, superseded] : known->second) {
            bool const retired = superseded.next == 0;
            if (from <= version && (retired ? !Current(typeId) : version < superseded.next))
                return &superseded.layout;
        }
    return Current(typeId);
}

unsigned dbc_OldLayouts::TypeIdOf(cow_String const& name) const {
    if (cls_ClassMetadata const* metadata = m_current.Find(name)) return metadata->TypeId();
    for (auto const& [typeId, versions] : m_old)
        for (auto const& [version, superseded] : versions)
            if (superseded.layout.Name() == name) return typeId;
    return 0;
}

std::string dbc_OldLayouts::NameOf(unsigned typeId) const {
    if (cls_ClassMetadata const* metadata = m_current.Find(typeId)) return metadata->Name().Text();
    auto const known = m_old.find(typeId);
    if (known != m_old.end()) return known->second.begin()->second.layout.Name().Text();
    if (typeId == cls_ListTypeId) return rom_Layout::OfList().Name().Text();
    if (typeId == cls_MapTypeId) return rom_Layout::OfMap().Name().Text();
    return std::to_string(typeId);
}
