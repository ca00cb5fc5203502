#include "kmaC_Swelling.h"

DD_DEFINE(kmaC_Swelling, kmaC_Module)

void kmaC_Swelling::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(ratios);
    v.Ask(table);
}
