#pragma once

#include "cls_ClassMetadata.h"
#include "cls_WriteVisitor.h"
#include "cow_CountedHld.h"

/// Metadata of an abstract class, or of one without a read constructor of its own.
template <class T>
class cls_AbsTypeAdapter : public cls_ClassMetadata {
public:
    cls_AbsTypeAdapter(cow_String const& name, int version, unsigned parentTypeId)
        : cls_ClassMetadata(name, T::TypeId(), version, nullptr, parentTypeId) {}

    void DBWrite(void const* object, cls_WriteVisitor const& visitor) const override {
        static_cast<T const*>(object)->DBWrite(visitor);
    }
    void DeleteObject(void const* object) const override {
        if (object) cow_Destroy(static_cast<T*>(const_cast<void*>(object)));
    }
    void (*Destroyer() const)(void*) override { return cow_ErasedDestroy<T>; }
};
