#include "kmaC_MoistureSwelling.h"

DD_DEFINE(kmaC_MoistureSwelling, kmaC_Module)

void kmaC_MoistureSwelling::Rules(mdl_RuleVisitor& v) const {
    v.Ask(ratios);
    v.Ask(table);
}
