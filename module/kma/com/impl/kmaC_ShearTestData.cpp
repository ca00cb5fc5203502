#include "kmaC_ShearTestData.h"

DD_DEFINE(kmaC_ShearTestData, kmaC_Module)

// Any value is accepted.
void kmaC_ShearTestData::Rules(mdl_RuleVisitor&) const {}
