#include "kmaC_PoreFluidExpansion.h"

DD_DEFINE(kmaC_PoreFluidExpansion, kmaC_Module)

void kmaC_PoreFluidExpansion::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
