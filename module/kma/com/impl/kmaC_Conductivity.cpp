#include "kmaC_Conductivity.h"

DD_DEFINE(kmaC_Conductivity, kmaC_Module)

void kmaC_Conductivity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
