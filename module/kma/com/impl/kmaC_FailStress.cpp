#include "kmaC_FailStress.h"

DD_DEFINE(kmaC_FailStress, kmaC_Module)

void kmaC_FailStress::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
