#include "kmaC_DruckerPrager.h"

DD_DEFINE(kmaC_DruckerPrager, kmaC_Module)

void kmaC_DruckerPrager::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Rule(eccentricity >= 0.0, 6);
    v.Ask(druckerPragerCreep);
    v.Ask(druckerPragerHardening);
    v.Ask(rateDependent);
    v.Ask(triaxialTestData);
    v.Ask(table);
}
