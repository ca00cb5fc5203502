#include "kmaC_Kappa.h"

DD_DEFINE_UNSCRIPTED(kmaC_Kappa, kmaC_Module)

void kmaC_Kappa::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
