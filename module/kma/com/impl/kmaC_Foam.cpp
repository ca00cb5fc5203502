#include "kmaC_Foam.h"

DD_DEFINE(kmaC_Foam, kmaC_Module)

void kmaC_Foam::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(foamHardening);
    v.Ask(rateDependent);
    v.Ask(table);
}
