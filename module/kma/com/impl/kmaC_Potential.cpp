#include "kmaC_Potential.h"

DD_DEFINE(kmaC_Potential, kmaC_Module)

void kmaC_Potential::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
