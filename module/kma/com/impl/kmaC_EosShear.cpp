#include "kmaC_EosShear.h"

DD_DEFINE(kmaC_EosShear, kmaC_Module)

void kmaC_EosShear::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
