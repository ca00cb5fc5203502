#pragma once

#include <type_traits>

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "cow_Btree.h"
#include "cow_BtreeIterator.h"

/// A tree of handles that is a record: a map from K (cow_String or int) to objects of class T.
template <class K, class V, class T>
class cls_xcBtree : public cow_Btree<K, V> {
    static_assert(std::is_same_v<K, cow_String> || std::is_same_v<K, int>);

public:
    cls_xcBtree() = default;
    explicit cls_xcBtree(cls_ReadVisitor const& visitor);

    /// The elements are written whether or not the map itself was: the last write under one
    /// identity decides what the record holds.
    void DBWrite(cls_WriteVisitor const& visitor) const;

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// A plain tree as a record of its own, with a new identity.
template <class K, class V, class T>
cls_xcBtree<K, V, T> cls_xcBtreeFromCow(cow_Btree<K, V> const& tree) {
    cls_xcBtree<K, V, T> result;
    static_cast<cow_Btree<K, V>&>(result) = tree;
    return result;
}

template <class K, class V, class T>
cls_xcBtree<K, V, T>::cls_xcBtree(cls_ReadVisitor const& visitor) : uid(visitor.GetUid()) {
    cls_MementoRead& memento = visitor.Memento();
    if constexpr (std::is_same_v<K, cow_String>) {
        std::unique_ptr<cls_ReadMapString2Obj> reader(memento.OpenMapString());
        while (reader->HasMore()) {
            cow_String key;
            reader->Key(key);
            this->InsertUnlessMember(key, V(cow_ShareErased(), reader->Value(T::TypeId())));
        }
    } else {
        std::unique_ptr<cls_ReadMapInt2Obj> reader(memento.OpenMapInt());
        while (reader->HasMore()) {
            int const key = reader->Key();
            this->InsertUnlessMember(key, V(cow_ShareErased(), reader->Value(T::TypeId())));
        }
    }
}

template <class K, class V, class T>
void cls_xcBtree<K, V, T>::DBWrite(cls_WriteVisitor const& visitor) const {
    bool constexpr byText = std::is_same_v<K, cow_String>;
    visitor.StartWrite(cls_MapTypeId, uid);
    visitor.CheckCollectionType(byText ? cls_CollectionMapString : cls_CollectionMapInt);
    auto* writer = [&] {
        if constexpr (byText)
            return visitor.Agent().OpenMapString();
        else
            return visitor.Agent().OpenMapInt();
    }();
    using Request =
        std::conditional_t<byText, cls_WriteRequestMapString2Obj, cls_WriteRequestMapInt2Obj>;
    cls_WriterScope<std::remove_pointer_t<decltype(writer)>> const scope(writer);
    cow_BtreeIterator<K, V> position(*this);
    for (position.First(); !position.IsDone(); position.Next()) {
        V const& value = position.CurrentValue();
        if (!value.GetPtr()) {
            writer->WriteNull(T::TypeId(), position.CurrentKey());
            continue;
        }
        Request const request(writer, position.CurrentKey());
        cls_WriteVisitor element(request, nullptr);
        value.ConstGet().DBWrite(element);
    }
}
