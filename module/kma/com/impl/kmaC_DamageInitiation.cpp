#include "kmaC_DamageInitiation.h"

DD_DEFINE(kmaC_DamageInitiation, kmaC_Module)

void kmaC_DamageInitiation::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // Neither the table nor the sub-options are asked.
}
