#include "kmaC_ThirdDirection.h"

DD_DEFINE_UNSCRIPTED(kmaC_ThirdDirection, kmaC_Module)

void kmaC_ThirdDirection::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
