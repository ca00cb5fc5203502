#include "kmaC_HeatGeneration.h"

DD_DEFINE(kmaC_HeatGeneration, kmaC_Module)

// Any value is accepted.
void kmaC_HeatGeneration::Rules(mdl_RuleVisitor&) const {}
