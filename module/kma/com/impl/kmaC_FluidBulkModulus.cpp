#include "kmaC_FluidBulkModulus.h"

DD_DEFINE_UNSCRIPTED(kmaC_FluidBulkModulus, kmaC_Module)

void kmaC_FluidBulkModulus::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
