#include "kmaC_DamageStabilization.h"

DD_DEFINE(kmaC_DamageStabilization, kmaC_Module)

// Any value is accepted.
void kmaC_DamageStabilization::Rules(mdl_RuleVisitor&) const {}
