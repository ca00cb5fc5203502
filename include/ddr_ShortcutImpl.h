#pragma once

#include "cls_WriteVisitor.h"
#include "cow_CountedHld.h"
#include "ddr_Ddb.h"
#include "ddr_ShortcutBaseImpl.h"
#include "ddr_ShortcutTraits.h"
#include "mdl_Container.h"

/// What shortcuts are resolved against.
using ddr_Container = mdl_Container<cow_String, ddr_Ddb>;

/// A step that leads to a T.
template <class T>
class ddr_ShortcutImpl : public ddr_ShortcutBaseImpl {
public:
    bool HoldsReference() const override { return false; }
    bool IsPersistent() const override { return true; }
    bool CachesTarget() const override { return false; }
    ddr_ShortcutImpl* Copy() const override = 0;

    /// The object, found anew from the root by each call. A member that is absent gives a reference
    /// to null; ddr_Shortcut has the same as pointers.
    virtual T const& ConstGet(ddr_Container const& container) const = 0;
    /// The object for writing: makes everything on the path unshared. A call that fails may have
    /// done so already for the steps before.
    virtual T& Get(ddr_Container& container) const = 0;
    virtual void DBWrite(cls_WriteVisitor const& /*visitor*/) const {}
    virtual unsigned DynTypeId() const { return TypeId(); }

    static constexpr unsigned TypeId() { return ddr_ShortcutTraits<T>::implTypeId; }
    /// Releases and frees a type-erased handle on a step that leads to a T.
    static void CowDtor(cow_HandleBase* handle) {
        if (!handle) return;
        auto* const typed = static_cast<cow_CountedHld<ddr_ShortcutImpl>*>(handle);
        typed->~cow_CountedHld<ddr_ShortcutImpl>();
        mem_Free(typed);
    }
    static void InitializeMetadata(cls_ClassRegistrar& registrar) {
        WithSmallTable(Describe(registrar, TypeId(), nullptr, cls_RootTypeId, CowDtor));
    }

protected:
    /// The metadata of a step of class Step. Records, handles and metadata know a step by the
    /// address of this base.
    template <class Step>
    static cls_ClassMetadata& DescribeStep(cls_ClassRegistrar& registrar) {
        return Describe(
                   registrar, Step::TypeId(),
                   [](cls_ReadVisitor& visitor) -> void* {
                       return static_cast<ddr_ShortcutImpl*>(new Step(visitor));
                   },
                   TypeId(), CowDtor)
            .AddOperations(
                [](void const* step, cls_WriteVisitor const& visitor) {
                    static_cast<ddr_ShortcutImpl const*>(step)->DBWrite(visitor);
                },
                cow_ErasedDestroy<ddr_ShortcutImpl>);
    }
};
