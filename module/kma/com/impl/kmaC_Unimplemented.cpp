#include "kmaC_Unimplemented.h"

DD_DEFINE_UNSCRIPTED(kmaC_Unimplemented, kmaC_Module)

// Any value is accepted.
void kmaC_Unimplemented::Rules(mdl_RuleVisitor&) const {}
