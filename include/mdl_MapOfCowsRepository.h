#pragma once

#include "cls_ClassRegistrar.h"
#include "cls_TypeAdapter.h"
#include "cls_xcBtree.h"
#include "cow_ArrayCOW.h"
#include "cow_BtreeUtils.h"
#include "cow_Virtual.h"
#include "mdl_Repository.h"
#include "mdl_RepositoryTraits.h"

/// A repository under integer keys. It sends the records that a repository of names sends, with the
/// key as a number, and keeps neither the time of a change nor the keys touched.
template <class K, class T>
class mdl_MapOfCowsRepository : public mdl_Repository {
public:
    using Traits = mdl_RepositoryTraits<mdl_MapOfCowsRepository>;
    using Handle = cow_ArrayCOW<T, cow_Virtual<T>>;
    using Tree = cls_xcBtree<K, Handle, T>;

    mdl_MapOfCowsRepository() = default;
    mdl_MapOfCowsRepository(mdl_MapOfCowsRepository const&) = default;
    mdl_MapOfCowsRepository& operator=(mdl_MapOfCowsRepository const&) = default;
    explicit mdl_MapOfCowsRepository(cls_ReadVisitor const& visitor)
        : mdl_Repository(visitor),
          m_map(cls_ReadVisitor(visitor, MapField())),
          m_uid(visitor.GetUid()) {}
    mdl_Extension* Copy() const override { return new mdl_MapOfCowsRepository(*this); }

    bool Insert(K key, T const& value) { return Insert(key, Handle(value.Copy())); }
    /// Takes ownership of \p value.
    bool Insert(K key, T* value) { return Insert(key, Handle(value)); }
    bool Remove(K key) {
        bool const removed = m_map.Remove(key);
        m_keysDirty = true;
        if (removed) SendRemove(key);
        return removed;
    }
    T& Get(K key) { return *GetPtr(key); }
    T* GetPtr(K key) {
        SendModify(key);
        auto* node = m_map.Find(key);
        return node && node->Value().GetPtr() ? &node->Value().Get() : nullptr;
    }
    T const& ConstGet(K key) const { return *ConstGetPtr(key); }
    T const* ConstGetPtr(K key) const {
        auto const* node = m_map.ConstFind(key);
        return node ? node->Value().GetPtr() : nullptr;
    }
    bool IsMember(K key) const { return m_map.ConstFind(key) != nullptr; }
    bool IsEmpty() const { return m_map.Size() == 0; }
    int Size() const override { return m_map.Size(); }
    /// The keys, sorted; the reference is good until the next change.
    cow_List<K> const& Keys() const {
        if (m_keysDirty) {
            m_keys = cow_BtreeUtils<K, Handle>::cow_Keys(m_map);
            m_keys.Sort();
            m_keysDirty = false;
        }
        return m_keys;
    }
    Tree& GetMap() {
        m_keysDirty = true;
        return m_map;
    }
    Tree const& ConstGetMap() const { return m_map; }
    void Clear() {
        m_keysDirty = true;  // until the cache is empty too, which may fail for want of memory
        m_map.cow_Btree<K, Handle>::operator=(cow_Btree<K, Handle>());
        m_keys.Resize(0);
        m_keysDirty = false;
    }
    void NewUid() override {
        mdl_Repository::NewUid();
        m_uid = cls_Uid::AllocateUid();
    }

    void DBWrite(cls_WriteVisitor const& visitor) const override {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        {
            cls_WriteVisitor base(visitor, mdl_Repository::TypeId());
            mdl_Repository::DBWrite(base);
        }
        cls_WriteVisitor map(visitor, MapField(), nullptr, nullptr);
        m_map.DBWrite(map);
    }
    unsigned DynTypeId() const override { return TypeId(); }
    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        registrar
            .AddClassMD(new cls_TypeAdapter<mdl_MapOfCowsRepository>(Traits::name, Traits::version,
                                                                     mdl_Repository::TypeId()))
            .AddAttribute(MapField(), cls_AttributeObject, cls_MapTypeId, cls_CollectionMapInt);
    }

private:
    static cls_FieldHandle MapField() { return cls_FieldHandle(-1, cow_String("map")); }

    bool Insert(K key, Handle const& value) {
        bool const replaced = m_map.ConstFind(key) != nullptr;
        m_keysDirty = true;
        if (replaced) m_map.Remove(key);
        if (!m_map.InsertUnlessMember(key, value)) return false;
        if (replaced) SendRemove(key);
        SendInsert(key);
        return true;
    }

    Tree m_map;
    cls_Uid m_uid = cls_Uid::AllocateUid();
    mutable cow_List<K> m_keys;
    mutable bool m_keysDirty = true;
};
