#include "kmaC_PorousFailureCriteria.h"

DD_DEFINE(kmaC_PorousFailureCriteria, kmaC_Module)

void kmaC_PorousFailureCriteria::Rules(mdl_RuleVisitor& v) const {
    v.Rule(fraction > 0.0, 14);
    v.Rule(criticalFraction >= 0.0, 15);
}
