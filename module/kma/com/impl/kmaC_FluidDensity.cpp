#include "kmaC_FluidDensity.h"

DD_DEFINE_UNSCRIPTED(kmaC_FluidDensity, kmaC_Module)

// Any value is accepted.
void kmaC_FluidDensity::Rules(mdl_RuleVisitor&) const {}
