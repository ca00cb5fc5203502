#include "kflC_TypeLabelMap.h"

atr_String kflC_TypeLabelMap::LabelString(kflC_TypeLabelEnm kind) {
    switch (kind) {
        case kflC_butterworthLabel:
            return atr_raw("Butterworth Filter");
        case kflC_chebyshev1Label:
            return atr_raw("Chebyshev1 Filter");
        case kflC_chebyshev2Label:
            return atr_raw("Chebyshev2 Filter");
    }
    return atr_String();
}
