#include "kmaC_Concrete.h"

DD_DEFINE(kmaC_Concrete, kmaC_Module)

void kmaC_Concrete::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(failureRatios);
    v.Ask(shearRetention);
    v.Ask(tensionStiffening);
    v.Ask(table);
}
