#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "cow_List.h"

/// A list of handles that is a record: a list of objects of class T, which may be null and of any
/// class derived from it.
template <class V, class T>
class cls_xc1DArrayList : public cow_List<V> {
public:
    cls_xc1DArrayList() = default;
    explicit cls_xc1DArrayList(cls_ReadVisitor const& visitor) : uid(visitor.GetUid()) {
        std::unique_ptr<cls_ReadListObj> reader(visitor.Memento().OpenList());
        this->Resize(reader->Size());
        while (reader->HasMore())
            this->Append(V(cow_ShareErased(), reader->NextObject(T::TypeId())));
    }

    void DBWrite(cls_WriteVisitor const& visitor) const {
        visitor.StartWrite(cls_ListTypeId, uid);
        visitor.CheckCollectionType(cls_CollectionList);
        cls_WriteListObj* writer = visitor.Agent().OpenList(1);
        cls_WriterScope<cls_WriteListObj> const scope(writer);
        for (int i = 0; i < this->Size(); ++i) {
            V const& value = this->UncheckedConstGet(i);
            if (!value.GetPtr()) {
                writer->WriteNull(T::TypeId());
                continue;
            }
            cls_WriteRequestListObj const request(writer);
            cls_WriteVisitor element(request, nullptr);
            value.ConstGet().DBWrite(element);
        }
    }

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// The same under the name that it bears outside attribute objects.
template <class V, class T>
using cls_xcList = cls_xc1DArrayList<V, T>;
