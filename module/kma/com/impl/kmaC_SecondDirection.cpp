#include "kmaC_SecondDirection.h"

DD_DEFINE_UNSCRIPTED(kmaC_SecondDirection, kmaC_Module)

void kmaC_SecondDirection::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
