#include "kmaC_Sorption.h"

DD_DEFINE(kmaC_Sorption, kmaC_Module)

void kmaC_Sorption::Rules(mdl_RuleVisitor& v) const {
    v.Ask(absorptionTable);
    if (exsorption) v.Ask(exsorptionTable);
}
