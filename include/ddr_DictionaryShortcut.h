#pragma once

#include "ddr_Shortcut.h"

/// The step to an M by its name in a P: in a repository, or in a class that selects members by
/// name.
template <class P, class M, int N>
class ddr_DictionaryShortcut : public ddr_ShortcutImpl<M> {
public:
    using Traits = ddr_StepTraits<ddr_DictionaryShortcut>;

    ddr_DictionaryShortcut(ddr_Shortcut<P> const& parent, cow_String const& key)
        : m_key(key), m_parent(parent), m_uid(cls_Uid::AllocateUid()) {}
    explicit ddr_DictionaryShortcut(cls_ReadVisitor const& visitor)
        : m_key(ReadKey(visitor)),
          m_parent(cls_ReadVisitor(visitor, ddr_ShortcutBaseImpl::ParentField())),
          m_uid(visitor.GetUid()) {}
    ddr_DictionaryShortcut* Copy() const override { return new ddr_DictionaryShortcut(*this); }

    cow_String Name() const override { return m_key; }
    cow_String Path() const override { return m_parent.Path() + Traits::PathStep(m_key); }
    cow_String DdbName() const override { return m_parent.DdbName(); }

    M const& ConstGet(ddr_Container const& container) const override {
        return Traits::ConstGet(ConstGetParent(container), m_key);
    }
    M& Get(ddr_Container& container) const override {
        return Traits::Get(GetParent(container), m_key);
    }
    P const& ConstGetParent(ddr_Container const& container) const {
        return m_parent.ConstGet(container);
    }
    P& GetParent(ddr_Container& container) const { return m_parent.Get(container); }

    cow_String const& Key() const { return m_key; }
    ddr_Shortcut<P> const& Parent() const { return m_parent; }
    cls_Uid const& Uid() const { return m_uid; }

    void DBWrite(cls_WriteVisitor const& visitor) const override {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        visitor.Agent().WriteString(ddr_ShortcutBaseImpl::NameField(), m_key);
        cls_WriteVisitor parent(visitor, ddr_ShortcutBaseImpl::ParentField(), nullptr, nullptr);
        m_parent.DBWrite(parent);
    }
    unsigned DynTypeId() const override { return TypeId(); }
    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        ddr_ShortcutBaseImpl::WithSmallTable(
            ddr_ShortcutImpl<M>::template DescribeStep<ddr_DictionaryShortcut>(registrar))
            .AddAttribute(ddr_ShortcutBaseImpl::NameField(), cls_AttributeString, 1,
                          cls_CollectionNone)
            .AddAttribute(ddr_ShortcutBaseImpl::ParentField(), cls_AttributeObject,
                          ddr_Shortcut<P>::TypeId(), cls_CollectionNone);
    }

private:
    static cow_String ReadKey(cls_ReadVisitor const& visitor) {
        cow_String key;
        visitor.Memento().ReadString(key, ddr_ShortcutBaseImpl::NameField(), cow_String());
        return key;
    }

    cow_String m_key;
    ddr_Shortcut<P> m_parent;
    cls_Uid m_uid;
};
