#include "kmaC_SpecificHeat.h"

DD_DEFINE(kmaC_SpecificHeat, kmaC_Module)

void kmaC_SpecificHeat::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
