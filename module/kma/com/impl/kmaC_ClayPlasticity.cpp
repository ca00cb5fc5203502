#include "kmaC_ClayPlasticity.h"

DD_DEFINE(kmaC_ClayPlasticity, kmaC_Module)

void kmaC_ClayPlasticity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(clayHardening);
    v.Ask(table);
}
