#pragma once

#include "kflC_Filter.h"

/// A filter whose response is as flat as can be below the cutoff frequency.
class kflC_ButterworthFilter : public kflC_Filter {
    DD_CLASS(kflC_ButterworthFilter, kflC_Filter, 0x3510003, 427, "ButterworthFilter")
public:
    /// A copy that shares nothing and has new identities, which the caller owns.
    kflC_ButterworthFilter* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }
    DD_END
};
