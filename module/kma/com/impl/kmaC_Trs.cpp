#include "kmaC_Trs.h"

DD_DEFINE(kmaC_Trs, kmaC_Module)

// Any value is accepted.
void kmaC_Trs::Rules(mdl_RuleVisitor&) const {}
