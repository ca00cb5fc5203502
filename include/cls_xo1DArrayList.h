#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "cow_List.h"

/// A list of objects by value that is a record. Its owner may give it one word of context.
template <class T>
class cls_xo1DArrayList : public cow_List<T> {
public:
    explicit cls_xo1DArrayList(void* ownerContext = nullptr) : context(ownerContext) {}
    explicit cls_xo1DArrayList(cls_ReadVisitor const& visitor, void* ownerContext = nullptr)
        : context(ownerContext), uid(visitor.GetUid()) {
        std::unique_ptr<cls_ReadListObj> reader(visitor.Memento().OpenList());
        this->Resize(reader->Size());
        reader->ExpectByValue(T::TypeId());
        while (reader->HasMore()) {
            cls_ReadVisitor const element(reader->NextMemento());
            this->Append(T(element));
        }
    }

    void DBWrite(cls_WriteVisitor const& visitor) const {
        visitor.StartWrite(cls_ListTypeId, uid);
        visitor.CheckCollectionType(cls_CollectionList);
        cls_WriteListObj* writer = visitor.Agent().OpenList(1);
        cls_WriterScope<cls_WriteListObj> const scope(writer);
        for (int i = 0; i < this->Size(); ++i) {
            cls_WriteRequestListObj const request(writer);
            cls_WriteVisitor element(request, nullptr);
            this->UncheckedConstGet(i).DBWrite(element);
        }
    }

    void* context;
    cls_Uid uid = cls_Uid::AllocateUid();
};
