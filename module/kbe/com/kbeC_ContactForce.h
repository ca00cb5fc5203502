#pragma once

#include "kbeC_assert.h"
#include "mdl_PropertyTable.h"

/// A contact force in some components. A value that is written for others to read: there is no
/// constructor that reads it, and no behaviour holds one.
class kbeC_ContactForce : public mem_AllocationOperators {
    DD_ROOT_WRITTEN(kbeC_ContactForce, 0x2A8000B, 800, "ContactForce")
public:
    virtual ~kbeC_ContactForce();
    /// A new copy, which the caller owns.
    virtual kbeC_ContactForce* Copy() const;
    /// Accepts everything.
    virtual void AssertValid() const;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;

    /// What scripts call the data of several contact forces.
    static constexpr omn_FixedString dataCmd() { return omn_FixedString("data"); }

    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_FIELD(int, independentComponent, 0)
    DD_FIELD(bool, slipDependency, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(mdl_PropertyTable, table)
    DD_END
};

using kbeC_ContactForceList = cow_List<kbeC_ContactForce>;
