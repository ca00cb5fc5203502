#pragma once

#include "kflC_Filter.h"

/// A filter that is steep behind the cutoff frequency at the price of ripples below it.
class kflC_Chebyshev1Filter : public kflC_Filter {
    DD_CLASS(kflC_Chebyshev1Filter, kflC_Filter, 0x3510004, 427, "Chebyshev1Filter")
public:
    /// A copy that shares nothing and has new identities, which the caller owns.
    kflC_Chebyshev1Filter* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, rippleFactor, 0.225)  ///< above 0, with no upper bound
    DD_END
};
