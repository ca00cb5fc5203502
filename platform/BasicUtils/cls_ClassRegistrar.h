#pragma once

#include <map>
#include <memory>
#include <vector>

#include "cls_ClassMetadata.h"

/// The schemas of one metadata domain. It owns them; registering a class again replaces its entry.
class cls_ClassRegistrar {
public:
    cls_ClassRegistrar();
    ~cls_ClassRegistrar();
    cls_ClassRegistrar(cls_ClassRegistrar const&) = delete;
    cls_ClassRegistrar& operator=(cls_ClassRegistrar const&) = delete;

    /// Takes ownership of \p metadata, and returns it for chaining.
    cls_ClassMetadata& AddClassMD(cls_ClassMetadata* metadata);
    /// Builds a plain metadata object; \p ctor may be null.
    cls_ClassMetadata& CreateClassMD(cow_String const& name, unsigned typeId, int version,
                                     cls_ClassMetadata::Constructor ctor, unsigned parentTypeId);
    /// Removes a class. A class that bears only the name or only the number stays.
    void DeleteClass(cow_String const& name, unsigned typeId);

    /// Null where nothing is registered under it.
    cls_ClassMetadata const* Find(unsigned typeId) const;
    cls_ClassMetadata const* Find(cow_String const& name) const;
    /// Whether \p candidate is the class or one of its ancestors by registered parents.
    bool IsParent(unsigned typeId, unsigned candidate) const;
    /// All classes by rising TypeId.
    std::vector<cls_ClassMetadata const*> Classes() const;

private:
    std::map<unsigned, std::unique_ptr<cls_ClassMetadata>> m_classes;
};
