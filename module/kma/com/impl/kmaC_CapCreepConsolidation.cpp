#include "kmaC_CapCreepConsolidation.h"

DD_DEFINE(kmaC_CapCreepConsolidation, kmaC_Module)

void kmaC_CapCreepConsolidation::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
