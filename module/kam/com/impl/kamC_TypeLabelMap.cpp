#include "kamC_TypeLabelMap.h"

atr_String kamC_TypeLabelMap::LabelString(kamC_TypeLabelEnm kind) {
    switch (kind) {
        case kamC_tabularLabel:
            return atr_raw("Tabular");
        case kamC_smoothStepLabel:
            return atr_raw("Smooth Step");
        case kamC_equallySpacedLabel:
            return atr_raw("Equally spaced");
        case kamC_periodicLabel:
            return atr_raw("Periodic");
        case kamC_modulatedLabel:
            return atr_raw("Modulated");
        case kamC_decayLabel:
            return atr_raw("Decay");
        case kamC_solutionDependentLabel:
            return atr_raw("Solution dependent");
        case kamC_psdDefinitionLabel:
            return atr_raw("PSD-Definition");
        case kamC_spectrumLabel:
            return atr_raw("Spectrum");
        case kamC_actuatorLabel:
            return atr_raw("Actuator");
        case kamC_userLabel:
            return atr_raw("User");
    }
    return atr_String();
}
