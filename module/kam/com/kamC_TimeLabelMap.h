#pragma once

#include "atr_String.h"

/// The time bases of amplitudes, as dialogs show them.
enum kamC_TimeLabelEnm : int {
    kamC_stepTimeLabel = 1,
    kamC_totalTimeLabel = 2,
    kamC_noTimeLabel = 3,
};

class kamC_TimeLabelMap {
public:
    /// Empty for a number that is none.
    static atr_String LabelString(kamC_TimeLabelEnm time);
};
