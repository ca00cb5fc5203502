#include "kmaC_InelasticHeatFraction.h"

DD_DEFINE(kmaC_InelasticHeatFraction, kmaC_Module)

void kmaC_InelasticHeatFraction::Rules(mdl_RuleVisitor& v) const {
    // The first text is that of a void fraction; both kinds of fraction share it.
    v.Rule(fraction >= 0.0, 14);
    v.Rule(fraction <= 1.0, 20);
}
