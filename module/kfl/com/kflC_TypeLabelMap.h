#pragma once

#include "atr_String.h"

/// The kinds of filter, as dialogs list them.
enum kflC_TypeLabelEnm : int {
    kflC_butterworthLabel = 1,
    kflC_chebyshev1Label = 2,
    kflC_chebyshev2Label = 3,
};

class kflC_TypeLabelMap {
public:
    /// Empty for a number that is no kind.
    static atr_String LabelString(kflC_TypeLabelEnm kind);
};
