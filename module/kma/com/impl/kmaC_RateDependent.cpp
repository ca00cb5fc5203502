#include "kmaC_RateDependent.h"

DD_DEFINE(kmaC_RateDependent, kmaC_Module)

void kmaC_RateDependent::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
