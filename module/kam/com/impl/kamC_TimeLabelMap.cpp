#include "kamC_TimeLabelMap.h"

atr_String kamC_TimeLabelMap::LabelString(kamC_TimeLabelEnm time) {
    switch (time) {
        case kamC_stepTimeLabel:
            return atr_raw("Step Time");
        case kamC_totalTimeLabel:
            return atr_raw("Total Time");
        case kamC_noTimeLabel:
            return atr_raw("N/A");
    }
    return atr_String();
}
