#include "kmaC_PorousElastic.h"

DD_DEFINE(kmaC_PorousElastic, kmaC_Module)

void kmaC_PorousElastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
