#pragma once

#include "cls_AbsTypeAdapter.h"
#include "cls_ReadVisitor.h"

/// Metadata of a concrete class: one that can be rebuilt from a record.
template <class T>
class cls_TypeAdapter : public cls_AbsTypeAdapter<T> {
public:
    using cls_AbsTypeAdapter<T>::cls_AbsTypeAdapter;

    void* Ctor(cls_ReadVisitor const& visitor) const override { return new T(visitor); }
    bool HasCtor() const override { return true; }
};
