#include "kmaC_Viscous.h"

DD_DEFINE(kmaC_Viscous, kmaC_Module)

void kmaC_Viscous::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // Here the table comes before the sub-option.
    v.Ask(table);
    v.Ask(potential);
}
