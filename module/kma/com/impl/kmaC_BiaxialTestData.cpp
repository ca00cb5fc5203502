#include "kmaC_BiaxialTestData.h"

DD_DEFINE(kmaC_BiaxialTestData, kmaC_Module)

// Any value is accepted.
void kmaC_BiaxialTestData::Rules(mdl_RuleVisitor&) const {}
