#pragma once

#include "cow_String.h"
#include "mem_AllocationOperators.h"

/// The step side of a shortcut: one step of the path, which knows the steps before it.
class omu_ShortcutImpl : public mem_AllocationOperators {
public:
    virtual ~omu_ShortcutImpl();
    virtual cow_String Name() const = 0;
    virtual cow_String Path() const = 0;
    /// Paths are script expressions already, so that this is the path where nobody overrides it.
    virtual cow_String PythonPath() const;
    /// Whether the step keeps hold of the object that it leads to.
    virtual bool HoldsReference() const = 0;
    /// Whether the step may be written to a database.
    virtual bool IsPersistent() const = 0;
    /// Whether the object is remembered between two look-ups.
    virtual bool CachesTarget() const = 0;
    /// A new copy, which the caller owns; it shares the steps before.
    virtual omu_ShortcutImpl* Copy() const = 0;

protected:
    omu_ShortcutImpl() = default;
    omu_ShortcutImpl(omu_ShortcutImpl const&) = default;
    omu_ShortcutImpl& operator=(omu_ShortcutImpl const&) = default;
};
