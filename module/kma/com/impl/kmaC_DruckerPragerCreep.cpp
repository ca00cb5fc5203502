#include "kmaC_DruckerPragerCreep.h"

DD_DEFINE(kmaC_DruckerPragerCreep, kmaC_Module)

void kmaC_DruckerPragerCreep::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
