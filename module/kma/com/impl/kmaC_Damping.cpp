#include "kmaC_Damping.h"

DD_DEFINE(kmaC_Damping, kmaC_Module)

void kmaC_Damping::Rules(mdl_RuleVisitor& v) const { v.Rule(composite >= 0.0, 16); }
