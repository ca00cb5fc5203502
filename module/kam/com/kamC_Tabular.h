#pragma once

#include <limits>

#include "kamC_Amplitude.h"
#include "kamC_BaselineCorrection.h"

/// An amplitude given by points, with straight lines between them, its first value before them and
/// its last value after them.
class kamC_Tabular : public kamC_Amplitude {
    DD_CLASS_OWN_ASSERT(kamC_Tabular, kamC_Amplitude, 0x2440008, 424, "TabularAmplitude")
public:
    /// What scripts may give for smooth in place of a number; no field holds it.
    DD_ENUM(SmoothEnm, SOLVER_DEFAULT)

    void AssertValid() const;
    /// A copy that shares nothing and has new identities, which the caller owns.
    kamC_Tabular* DeepCopy() const { return DDB_DeepCopyPtr(this, DynTypeId()); }

    /// How much of an interval on each side of a point is rounded off, 0 to 0.5. The largest double
    /// leaves it to the solver.
    DD_FIELD(double, smooth, std::numeric_limits<double>::max())
    DD_FIELD(cls_xp2DArrayDouble, data)  ///< rows of time and value
    DD_OPTION(kamC_BaselineCorrection, baselineCorrection)
    DD_END
};
