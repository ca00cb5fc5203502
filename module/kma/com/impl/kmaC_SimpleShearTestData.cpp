#include "kmaC_SimpleShearTestData.h"

DD_DEFINE(kmaC_SimpleShearTestData, kmaC_Module)

// Any value is accepted.
void kmaC_SimpleShearTestData::Rules(mdl_RuleVisitor&) const {}
