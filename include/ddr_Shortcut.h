#pragma once

#include "cls_ReadVisitor.h"
#include "cow_COW.h"
#include "ddr_ShortcutImpl.h"
#include "omu_ShortcutBase.h"

/// A persistent path to a T: a handle on the last step of a chain, each step of which holds the
/// handle of the one before; the chain starts at a model. A copy shares the chain.
template <class T>
class ddr_Shortcut : public omu_ShortcutBase, public mem_AllocationOperators {
public:
    using Impl = ddr_ShortcutImpl<T>;
    using Handle = cow_COW<Impl, cow_Virtual<Impl>>;

    /// Not set.
    ddr_Shortcut() : ddr_Shortcut(static_cast<Impl*>(nullptr)) {}
    /// Takes ownership of the step.
    explicit ddr_Shortcut(Impl* step) : m_impl(step), m_uid(cls_Uid::AllocateUid()) {}
    explicit ddr_Shortcut(cls_ReadVisitor const& visitor)
        : m_impl(cow_ShareErased(),
                 visitor.Memento().ReadObject(ddr_ShortcutBaseImpl::ImplField(), Impl::TypeId())),
          m_uid(visitor.GetUid()) {}
    ddr_Shortcut(ddr_Shortcut const&) = default;
    ddr_Shortcut& operator=(ddr_Shortcut const&) = default;

    bool IsSet() const override { return !m_impl.IsNull(); }
    /// Empty where nothing is set, as are the paths.
    cow_String Name() const override { return IsSet() ? Step().Name() : cow_String(); }
    cow_String Path() const override { return IsSet() ? Step().Path() : cow_String(); }
    cow_String PythonPath() const override { return IsSet() ? Step().PythonPath() : cow_String(); }
    cow_String DdbName() const { return IsSet() ? Step().DdbName() : cow_String(); }

    /// The object, for reading and for writing; see ddr_ShortcutImpl. Raises if nothing is set.
    T const& ConstGet(ddr_Container const& container) const {
        return SetStep().ConstGet(container);
    }
    T& Get(ddr_Container& container) const { return SetStep().Get(container); }
    /// The same as pointers: null for a member that is absent.
    T const* ConstGetPtr(ddr_Container const& container) const { return &ConstGet(container); }
    T* GetPtr(ddr_Container& container) const { return &Get(container); }

    Handle const& StepHandle() const { return m_impl; }
    cls_Uid const& Uid() const { return m_uid; }

    void DBWrite(cls_WriteVisitor const& visitor) const {
        if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
        if (!IsSet()) {
            visitor.Agent().WriteNull(ddr_ShortcutBaseImpl::ImplField());
            return;
        }
        cls_WriteVisitor impl(visitor, ddr_ShortcutBaseImpl::ImplField(), &m_impl, nullptr);
        Step().DBWrite(impl);
    }
    static constexpr unsigned TypeId() { return ddr_ShortcutTraits<T>::typeId; }
    static void CowDtor(cow_HandleBase* handle) {
        if (!handle) return;
        auto* const typed = static_cast<cow_CountedHld<ddr_Shortcut>*>(handle);
        typed->~cow_CountedHld<ddr_Shortcut>();
        mem_Free(typed);
    }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        ddr_ShortcutBaseImpl::WithSmallTable(
            ddr_ShortcutBaseImpl::Describe(
                registrar, TypeId(),
                [](cls_ReadVisitor& visitor) -> void* { return new ddr_Shortcut(visitor); },
                cls_RootTypeId, CowDtor))
            .AddOperations(
                [](void const* shortcut, cls_WriteVisitor const& visitor) {
                    static_cast<ddr_Shortcut const*>(shortcut)->DBWrite(visitor);
                },
                cow_ErasedDestroy<ddr_Shortcut>)
            .AddAttribute(ddr_ShortcutBaseImpl::ImplField(), cls_AttributeObject, Impl::TypeId(),
                          cls_CollectionNone);
    }

private:
    Impl const& Step() const { return m_impl.ConstGet(); }
    Impl const& SetStep() const {
        if (!IsSet()) ddr_ShortcutBaseImpl::RaiseUnset();
        return Step();
    }

    Handle m_impl;
    cls_Uid m_uid;
};
