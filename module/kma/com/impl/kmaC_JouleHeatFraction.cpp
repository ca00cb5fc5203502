#include "kmaC_JouleHeatFraction.h"

DD_DEFINE(kmaC_JouleHeatFraction, kmaC_Module)

void kmaC_JouleHeatFraction::Rules(mdl_RuleVisitor& v) const {
    // The text is that of a void fraction. There is no upper limit.
    v.Rule(fraction >= 0.0, 14);
}
