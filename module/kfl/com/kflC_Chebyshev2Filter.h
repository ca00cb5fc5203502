#pragma once

#include "kflC_Filter.h"

/// A filter that is steep behind the cutoff frequency at the price of ripples far above it.
class kflC_Chebyshev2Filter : public kflC_Filter {
    DD_CLASS(kflC_Chebyshev2Filter, kflC_Filter, 0x3510005, 427, "Chebyshev2Filter")
public:
    /// A copy that shares nothing and has new identities, which the caller owns.
    kflC_Chebyshev2Filter* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, rippleFactor, 0.025)  ///< above 0 and at most 1
    DD_END
};
