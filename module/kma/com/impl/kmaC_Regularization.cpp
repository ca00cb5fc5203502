#include "kmaC_Regularization.h"

DD_DEFINE(kmaC_Regularization, kmaC_Module)

// Any value is accepted.
void kmaC_Regularization::Rules(mdl_RuleVisitor&) const {}
