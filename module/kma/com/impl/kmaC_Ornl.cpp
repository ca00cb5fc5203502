#include "kmaC_Ornl.h"

DD_DEFINE(kmaC_Ornl, kmaC_Module)

// Any value is accepted.
void kmaC_Ornl::Rules(mdl_RuleVisitor&) const {}
