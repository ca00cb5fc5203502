#include "kmaC_UniaxialTestData.h"

DD_DEFINE(kmaC_UniaxialTestData, kmaC_Module)

// Any value is accepted.
void kmaC_UniaxialTestData::Rules(mdl_RuleVisitor&) const {}
