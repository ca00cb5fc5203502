#include "kmaC_ConcreteCompressionDamage.h"

DD_DEFINE(kmaC_ConcreteCompressionDamage, kmaC_Module)

void kmaC_ConcreteCompressionDamage::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
