#include "kmaC_Hypoelastic.h"

DD_DEFINE(kmaC_Hypoelastic, kmaC_Module)

// Any value is accepted.
void kmaC_Hypoelastic::Rules(mdl_RuleVisitor&) const {}
