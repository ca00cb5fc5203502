#include "kmaC_BrittleFailure.h"

DD_DEFINE(kmaC_BrittleFailure, kmaC_Module)

// Any value is accepted.
void kmaC_BrittleFailure::Rules(mdl_RuleVisitor&) const {}
