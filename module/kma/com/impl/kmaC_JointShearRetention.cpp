#include "kmaC_JointShearRetention.h"

DD_DEFINE_UNSCRIPTED(kmaC_JointShearRetention, kmaC_Module)

void kmaC_JointShearRetention::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
