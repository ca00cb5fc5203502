#include "kmaC_TriaxialTestData.h"

DD_DEFINE(kmaC_TriaxialTestData, kmaC_Module)

// Any value is accepted.
void kmaC_TriaxialTestData::Rules(mdl_RuleVisitor&) const {}
