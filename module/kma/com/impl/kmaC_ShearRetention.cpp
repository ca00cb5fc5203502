#include "kmaC_ShearRetention.h"

DD_DEFINE(kmaC_ShearRetention, kmaC_Module)

void kmaC_ShearRetention::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
