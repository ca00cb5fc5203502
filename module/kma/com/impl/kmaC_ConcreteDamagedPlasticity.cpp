#include "kmaC_ConcreteDamagedPlasticity.h"

DD_DEFINE(kmaC_ConcreteDamagedPlasticity, kmaC_Module)

void kmaC_ConcreteDamagedPlasticity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(concreteCompressionHardening);
    v.Ask(concreteTensionStiffening);
    v.Ask(concreteCompressionDamage);
    v.Ask(concreteTensionDamage);
    v.Ask(table);
}
