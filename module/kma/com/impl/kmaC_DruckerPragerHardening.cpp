#include "kmaC_DruckerPragerHardening.h"

DD_DEFINE(kmaC_DruckerPragerHardening, kmaC_Module)

void kmaC_DruckerPragerHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
