#include "cls_ClassRegistrar.h"

cls_ClassRegistrar::cls_ClassRegistrar() = default;
cls_ClassRegistrar::~cls_ClassRegistrar() = default;

cls_ClassMetadata& cls_ClassRegistrar::AddClassMD(cls_ClassMetadata* metadata) {
    std::unique_ptr<cls_ClassMetadata> owned(metadata);
    std::unique_ptr<cls_ClassMetadata>& slot = m_classes[metadata->TypeId()];
    slot = std::move(owned);
    return *slot;
}

cls_ClassMetadata& cls_ClassRegistrar::CreateClassMD(cow_String const& name, unsigned typeId,
                                                     int version,
                                                     cls_ClassMetadata::Constructor ctor,
                                                     unsigned parentTypeId) {
    return AddClassMD(new cls_ClassMetadata(name, typeId, version, ctor, parentTypeId));
}

void cls_ClassRegistrar::DeleteClass(cow_String const& name, unsigned typeId) {
    auto found = m_classes.find(typeId);
    if (found != m_classes.end() && found->second->Name() == name) m_classes.erase(found);
}

cls_ClassMetadata const* cls_ClassRegistrar::Find(unsigned typeId) const {
    auto found = m_classes.find(typeId);
    return found == m_classes.end() ? nullptr : found->second.get();
}

cls_ClassMetadata const* cls_ClassRegistrar::Find(cow_String const& name) const {
    for (auto const& [typeId, metadata] : m_classes)
        if (metadata->Name() == name) return metadata.get();
    return nullptr;
}

bool cls_ClassRegistrar::IsParent(unsigned typeId, unsigned candidate) const {
    // The bound ends the walk even over parents that name each other.
    for (std::size_t steps = 0; steps <= m_classes.size(); ++steps) {
        if (typeId == candidate) return true;
        cls_ClassMetadata const* metadata = Find(typeId);
        if (!metadata) return false;
        typeId = metadata->ParentTypeId();
    }
    return false;
}

std::vector<cls_ClassMetadata const*> cls_ClassRegistrar::Classes() const {
    std::vector<cls_ClassMetadata const*> result;
    result.reserve(m_classes.size());
    for (auto const& [typeId, metadata] : m_classes) result.push_back(metadata.get());
    return result;
}
