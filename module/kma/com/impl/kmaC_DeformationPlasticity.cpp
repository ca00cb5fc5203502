#include "kmaC_DeformationPlasticity.h"

DD_DEFINE(kmaC_DeformationPlasticity, kmaC_Module)

void kmaC_DeformationPlasticity::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
