#include "kmaC_CyclicHardening.h"

DD_DEFINE(kmaC_CyclicHardening, kmaC_Module)

void kmaC_CyclicHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
