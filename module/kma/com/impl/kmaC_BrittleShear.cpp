#include "kmaC_BrittleShear.h"

DD_DEFINE(kmaC_BrittleShear, kmaC_Module)

// Any value is accepted.
void kmaC_BrittleShear::Rules(mdl_RuleVisitor&) const {}
