#pragma once

#include "DDB_DeepCopy.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"

/// The correction of a measured acceleration record, so that its integrals do not drift: the ends
/// of the intervals over which the mean square of the velocity is made least. Part of a tabular or
/// equally spaced amplitude, and no amplitude itself.
class kamC_BaselineCorrection : public mem_AllocationOperators {
    DD_ROOT(kamC_BaselineCorrection, 0x2440001, 203, "BaselineCorrection")
public:
    /// A new copy, which the caller owns.
    virtual kamC_BaselineCorrection* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;
    /// The ends must not be negative and must rise strictly.
    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_BaselineCorrection* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    /// Times at which an interval ends and the next begins.
    DD_FIELD(cls_xp1DArrayListDouble, intervals)
    DD_END
};

template <>
struct cow_Destroyer<kamC_BaselineCorrection> : mdl_DynamicDestroyer<kamC_BaselineCorrection> {};
