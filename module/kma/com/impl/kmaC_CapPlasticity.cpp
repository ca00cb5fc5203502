#include "kmaC_CapPlasticity.h"

DD_DEFINE(kmaC_CapPlasticity, kmaC_Module)

void kmaC_CapPlasticity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(capCreepCohesion);
    v.Ask(capCreepConsolidation);
    v.Ask(capHardening);
    v.Ask(table);
}
