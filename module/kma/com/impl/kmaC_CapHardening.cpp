#include "kmaC_CapHardening.h"

DD_DEFINE(kmaC_CapHardening, kmaC_Module)

void kmaC_CapHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
