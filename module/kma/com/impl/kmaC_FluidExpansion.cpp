#include "kmaC_FluidExpansion.h"

DD_DEFINE_UNSCRIPTED(kmaC_FluidExpansion, kmaC_Module)

void kmaC_FluidExpansion::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
