#include "kmaC_FoamHardening.h"

DD_DEFINE(kmaC_FoamHardening, kmaC_Module)

void kmaC_FoamHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
