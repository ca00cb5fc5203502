#include "kmaC_Density.h"

DD_DEFINE(kmaC_Density, kmaC_Module)

void kmaC_Density::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
