#include "kmaC_PlanarTestData.h"

DD_DEFINE(kmaC_PlanarTestData, kmaC_Module)

// Any value is accepted.
void kmaC_PlanarTestData::Rules(mdl_RuleVisitor&) const {}
