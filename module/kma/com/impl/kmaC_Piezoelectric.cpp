#include "kmaC_Piezoelectric.h"

DD_DEFINE(kmaC_Piezoelectric, kmaC_Module)

// Any value is accepted.
void kmaC_Piezoelectric::Rules(mdl_RuleVisitor&) const {}
