#pragma once

#include <limits>

#include "kamC_Amplitude.h"
#include "kamC_BaselineCorrection.h"

/// An amplitude given by values at equal intervals of time, as a recorder delivers them.
class kamC_EquallySpaced : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_EquallySpaced, kamC_Amplitude, 0x2440004, 424,
                        "EquallySpacedAmplitude")
public:
    /// What scripts may give for smooth in place of a number; no field holds it.
    DD_ENUM(SmoothEnm, SOLVER_DEFAULT)

    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_EquallySpaced* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    DD_FIELD(double, fixedInterval, 0.0)  ///< time between two values
    DD_FIELD(double, begin, 0.0)          ///< time of the first value
    /// As that of a tabular amplitude.
    DD_FIELD(double, smooth, std::numeric_limits<double>::max())
    DD_FIELD(cls_xp1DArrayListDouble, data)
    DD_OPTION(kamC_BaselineCorrection, baselineCorrection)
    DD_END
};
