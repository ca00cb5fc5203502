#pragma once

#include "atr_String.h"

/// The kinds of amplitude, as dialogs list them.
enum kamC_TypeLabelEnm : int {
    kamC_tabularLabel = 1,
    kamC_smoothStepLabel = 2,
    kamC_equallySpacedLabel = 3,
    kamC_periodicLabel = 4,
    kamC_modulatedLabel = 5,
    kamC_decayLabel = 6,
    kamC_solutionDependentLabel = 7,
    kamC_psdDefinitionLabel = 8,
    kamC_spectrumLabel = 9,
    kamC_actuatorLabel = 10,
    kamC_userLabel = 11,
};

class kamC_TypeLabelMap {
public:
    /// Empty for a number that is no kind.
    static atr_String LabelString(kamC_TypeLabelEnm kind);
};
