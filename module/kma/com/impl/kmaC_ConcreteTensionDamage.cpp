#include "kmaC_ConcreteTensionDamage.h"

DD_DEFINE(kmaC_ConcreteTensionDamage, kmaC_Module)

void kmaC_ConcreteTensionDamage::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
