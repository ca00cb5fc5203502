#pragma once

#include "cls_ClassRegistrar.h"
#include "cls_TypeAdapter.h"
#include "cls_xcBtree.h"
#include "cow_ArrayCOW.h"
#include "cow_BtreeUtils.h"
#include "cow_Virtual.h"
#include "mdl_Repository.h"
#include "mdl_RepositoryTraits.h"
#include "mdl_TouchedKeys.h"

/// A repository: objects of class T by name. A copy shares everything; a write detaches the path to
/// the object written. Every change goes to this thread's change history.
template <class T>
class mdl_MapString2ObjCow : public mdl_Repository {
public:
    using Traits = mdl_RepositoryTraits<mdl_MapString2ObjCow>;
    using Handle = cow_ArrayCOW<T, cow_Virtual<T>>;
    using Tree = cls_xcBtree<cow_String, Handle, T>;

    mdl_MapString2ObjCow() = default;
    mdl_MapString2ObjCow(mdl_MapString2ObjCow const&) = default;
    mdl_MapString2ObjCow& operator=(mdl_MapString2ObjCow const&) = default;
    /// The embedded form: the tree alone, read from the owner's field. The repository's own
    /// identity stays that of a default object.
    mdl_MapString2ObjCow(cls_ReadVisitor const& visitor, bool) : m_map(visitor), m_uid() {
        m_touched.Touch(cow_String());
    }
    mdl_Extension* Copy() const override { return new mdl_MapString2ObjCow(*this); }

    /// Each replaces a present key's object: the records are then the removal and the insertion.
    bool Insert(cow_String const& key, T const& value) { return Insert(key, Handle(value.Copy())); }
    /// Takes ownership of \p value.
    bool Insert(cow_String const& key, T* value) { return Insert(key, Handle(value)); }
    /// Shares what the handle holds, which must not be null.
    bool Insert(cow_String const& given, Handle const& value) {
        cow_String const key = given;  // the caller's may live in the node that goes
        bool const replaced = m_map.ConstFind(key) != nullptr;
        m_keysDirty = true;
        if (replaced) m_map.Remove(key);
        if (!m_map.InsertUnlessMember(key, value)) return false;
        if (replaced) SendRemove(key);
        SendInsert(key);
        m_touched.Touch(key);
        return true;
    }
    /// Whether something went.
    bool Remove(cow_String const& given) {
        cow_String const key = given;  // the caller's may live in the node that goes
        bool const removed = m_map.Remove(key);
        m_keysDirty = true;
        if (removed) {
            SendRemove(key);
            m_touched.Touch(key);
        }
        return removed;
    }

    /// The object for writing. Records a modification whatever the caller goes on to do, and even
    /// for a key that is missing, for which the result is a reference to null: GetPtr tells it.
    T& Get(cow_String const& key) { return *GetPtr(key); }
    /// The same as a pointer: null for a missing key.
    T* GetPtr(cow_String const& key) {
        SendModify(key);
        m_touched.Touch(key);
        auto* node = m_map.Find(key);
        return node && node->Value().GetPtr() ? &node->Value().Get() : nullptr;
    }
    /// The object for reading: a reference to null for a missing key. Neither detaches nor records.
    T const& ConstGet(cow_String const& key) const { return *ConstGetPtr(key); }
    /// The same as a pointer: null for a missing key.
    T const* ConstGetPtr(cow_String const& key) const {
        auto const* node = m_map.ConstFind(key);
        return node ? node->Value().GetPtr() : nullptr;
    }

    bool IsMember(cow_String const& key) const { return m_map.ConstFind(key) != nullptr; }
    bool IsEmpty() const { return m_map.Size() == 0; }
    int Size() const override { return m_map.Size(); }
    /// The keys in tree order; built once for each run of changes.
    cow_List<cow_String> Keys() const {
        if (m_keysDirty) {
            m_keys = cow_BtreeUtils<cow_String, Handle>::cow_Keys(m_map);
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
        m_map.cow_Btree<cow_String, Handle>::operator=(cow_Btree<cow_String, Handle>());
        m_keys.Resize(0);
        m_keysDirty = false;
        m_touched.Touch(cow_String());
    }

    /// When the repository last changed, by omi_gettimecounter(), and the keys touched, each once.
    double ChangeTime() const { return m_touched.Time(); }
    cow_List<cow_String> const& ChangedKeys() const { return m_touched.Keys(); }

    void NewUid() override {
        mdl_Repository::NewUid();
        m_uid = cls_Uid::AllocateUid();
    }
    cls_Uid const& Uid() const { return m_uid; }

    /// The embedded form: the tree alone.
    void DBWrite(cls_WriteVisitor const& visitor, bool) const { m_map.DBWrite(visitor); }
    unsigned DynTypeId() const override { return TypeId(); }
    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        registrar
            .AddClassMD(new cls_TypeAdapter<mdl_MapString2ObjCow>(Traits::name, Traits::version,
                                                                  mdl_Repository::TypeId()))
            .AddAttribute(MapField(), cls_AttributeObject, cls_MapTypeId, cls_CollectionMapString);
    }

protected:
    friend class cls_TypeAdapter<mdl_MapString2ObjCow>;
    friend class cls_AbsTypeAdapter<mdl_MapString2ObjCow>;

    /// The persistent form: a record of its own.
    explicit mdl_MapString2ObjCow(cls_ReadVisitor const& visitor)
        : mdl_Repository(visitor),
          m_map(cls_ReadVisitor(visitor, MapField())),
          m_uid(visitor.GetUid()) {
        m_touched.Touch(cow_String());
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

private:
    static cls_FieldHandle MapField() { return cls_FieldHandle(-1, cow_String("map")); }

    Tree m_map;
    cls_Uid m_uid = cls_Uid::AllocateUid();
    mutable bool m_keysDirty = true;
    mutable cow_List<cow_String> m_keys;
    mdl_TouchedKeys m_touched;
};
