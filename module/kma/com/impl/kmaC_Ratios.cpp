#include "kmaC_Ratios.h"

DD_DEFINE(kmaC_Ratios, kmaC_Module)

void kmaC_Ratios::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
