#include "kmaC_Creep.h"

DD_DEFINE(kmaC_Creep, kmaC_Module)

void kmaC_Creep::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(ornl);
    v.Ask(potential);
    v.Ask(table);
}
