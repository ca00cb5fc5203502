#include "kmaC_FailStrain.h"

DD_DEFINE(kmaC_FailStrain, kmaC_Module)

void kmaC_FailStrain::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
