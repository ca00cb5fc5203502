#include "kmaC_Gel.h"

DD_DEFINE(kmaC_Gel, kmaC_Module)

// Any value is accepted.
void kmaC_Gel::Rules(mdl_RuleVisitor&) const {}
