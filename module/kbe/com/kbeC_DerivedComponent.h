#pragma once

#include "kbeC_CDCTerm.h"

/// A component that is computed from others, as a list of terms.
class kbeC_DerivedComponent : public mem_AllocationOperators {
    DD_ROOT(kbeC_DerivedComponent, 0x2A8002E, 836, "DerivedComponent")
public:
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kbeC_DerivedComponent* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_FIELD(cls_xo1DArrayList<kbeC_CDCTerm>, cdcTerms)
    DD_END

    bool operator==(kbeC_DerivedComponent const& other) const;
    bool operator!=(kbeC_DerivedComponent const& other) const { return !(*this == other); }

    /// Whether the terms use only components of the list: their independent ones where they depend
    /// on some, and their intrinsic ones if \p checkIntrinsic says so.
    bool ValidComponents(cow_List<int> const& available, bool checkIntrinsic) const;
};
