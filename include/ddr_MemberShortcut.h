#pragma once

#include "ddr_Shortcut.h"

/// The step to a member M of a P. N tells apart several members of one type in one parent.
template <class P, class M, int N>
class ddr_MemberShortcut : public ddr_ShortcutImpl<M> {
public:
    using Traits = ddr_StepTraits<ddr_MemberShortcut>;

    explicit ddr_MemberShortcut(ddr_Shortcut<P> const& parent)
        : m_parent(parent), m_uid(cls_Uid::AllocateUid()) {}
    explicit ddr_MemberShortcut(cls_ReadVisitor const& visitor)
        : m_parent(cls_ReadVisitor(visitor, ddr_ShortcutBaseImpl::ParentField())),
          m_uid(visitor.GetUid()) {}
    ddr_MemberShortcut* Copy() const override { return new ddr_MemberShortcut(*this); }

    cow_String Name() const override { return cow_String(Traits::Name()); }
    cow_String Path() const override { return m_parent.Path() + "." + Name(); }
    cow_String DdbName() const override { return m_parent.DdbName(); }

    M const& ConstGet(ddr_Container const& container) const override {
        return Traits::ConstGet(ConstGetParent(container));
    }
    M& Get(ddr_Container& container) const override { return Traits::Get(GetParent(container)); }
    P const& ConstGetParent(ddr_Container const& container) const {
        return m_parent.ConstGet(container);
    }
    P& GetParent(ddr_Container& container) const { return m_parent.Get(container); }

    ddr_Shortcut<P> const& Parent() const { return m_parent; }
    cls_Uid const& Uid() const { return m_uid; }

    void DBWrite(cls_WriteVisitor const& visitor) const override {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        cls_WriteVisitor parent(visitor, ddr_ShortcutBaseImpl::ParentField(), nullptr, nullptr);
        m_parent.DBWrite(parent);
    }
    unsigned DynTypeId() const override { return TypeId(); }
    static constexpr unsigned TypeId() { return Traits::typeId; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        ddr_ShortcutBaseImpl::WithMediumTable(
            ddr_ShortcutImpl<M>::template DescribeStep<ddr_MemberShortcut>(registrar))
            .AddAttribute(ddr_ShortcutBaseImpl::ParentField(), cls_AttributeObject,
                          ddr_Shortcut<P>::TypeId(), cls_CollectionNone);
    }

private:
    ddr_Shortcut<P> m_parent;
    cls_Uid m_uid;
};
