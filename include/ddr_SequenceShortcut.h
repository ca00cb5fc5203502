#pragma once

#include "ddr_Shortcut.h"

/// The step to an M by its number in a P: a list, from 0, or a repository under integer keys.
template <class P, class M, int N>
class ddr_SequenceShortcut : public ddr_ShortcutImpl<M> {
public:
    using Traits = ddr_StepTraits<ddr_SequenceShortcut>;

    ddr_SequenceShortcut(ddr_Shortcut<P> const& parent, int index)
        : m_index(index), m_parent(parent), m_uid(cls_Uid::AllocateUid()) {}
    explicit ddr_SequenceShortcut(cls_ReadVisitor const& visitor)
        : m_index(visitor.Memento().ReadInt(ddr_ShortcutBaseImpl::IndexField(), 0)),
          m_parent(cls_ReadVisitor(visitor, ddr_ShortcutBaseImpl::ParentField())),
          m_uid(visitor.GetUid()) {}
    ddr_SequenceShortcut* Copy() const override { return new ddr_SequenceShortcut(*this); }

    cow_String Name() const override { return cow_String(m_index); }
    cow_String Path() const override { return m_parent.Path() + "[" + Name() + "]"; }
    cow_String DdbName() const override { return m_parent.DdbName(); }

    M const& ConstGet(ddr_Container const& container) const override {
        return Traits::ConstGet(ConstGetParent(container), m_index);
    }
    M& Get(ddr_Container& container) const override {
        return Traits::Get(GetParent(container), m_index);
    }
    P const& ConstGetParent(ddr_Container const& container) const {
        return m_parent.ConstGet(container);
    }
    P& GetParent(ddr_Container& container) const { return m_parent.Get(container); }

    int Index() const { return m_index; }
    ddr_Shortcut<P> const& Parent() const { return m_parent; }
    cls_Uid const& Uid() const { return m_uid; }

    void DBWrite(cls_WriteVisitor const& visitor) const override {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        visitor.Agent().WriteInt(ddr_ShortcutBaseImpl::IndexField(), m_index);
        cls_WriteVisitor parent(visitor, ddr_ShortcutBaseImpl::ParentField(), nullptr, nullptr);
        m_parent.DBWrite(parent);
    }
    unsigned DynTypeId() const override { return TypeId(); }
    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        ddr_ShortcutBaseImpl::WithMediumTable(
            ddr_ShortcutImpl<M>::template DescribeStep<ddr_SequenceShortcut>(registrar))
            .AddAttribute(ddr_ShortcutBaseImpl::IndexField(), cls_AttributeInt, 1,
                          cls_CollectionNone)
            .AddAttribute(ddr_ShortcutBaseImpl::ParentField(), cls_AttributeObject,
                          ddr_Shortcut<P>::TypeId(), cls_CollectionNone);
    }

private:
    int m_index;
    ddr_Shortcut<P> m_parent;
    cls_Uid m_uid;
};
