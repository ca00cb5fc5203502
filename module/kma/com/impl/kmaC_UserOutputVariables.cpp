#include "kmaC_UserOutputVariables.h"

DD_DEFINE(kmaC_UserOutputVariables, kmaC_Module)

void kmaC_UserOutputVariables::Rules(mdl_RuleVisitor& v) const { v.Rule(n >= 0, 17); }
