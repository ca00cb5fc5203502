#include "kmaC_FluidLeakoff.h"

DD_DEFINE(kmaC_FluidLeakoff, kmaC_Module)

void kmaC_FluidLeakoff::Rules(mdl_RuleVisitor& v) const {
    // A user's routine needs no table. The number of dependencies is not looked at.
    if (type == TypeEnm::COEFFICIENTS) v.Ask(table);
}
