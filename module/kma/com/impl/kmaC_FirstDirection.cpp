#include "kmaC_FirstDirection.h"

DD_DEFINE_UNSCRIPTED(kmaC_FirstDirection, kmaC_Module)

void kmaC_FirstDirection::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
