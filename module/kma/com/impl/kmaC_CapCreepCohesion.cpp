#include "kmaC_CapCreepCohesion.h"

DD_DEFINE(kmaC_CapCreepCohesion, kmaC_Module)

void kmaC_CapCreepCohesion::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
