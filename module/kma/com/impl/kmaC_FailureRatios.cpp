#include "kmaC_FailureRatios.h"

DD_DEFINE(kmaC_FailureRatios, kmaC_Module)

void kmaC_FailureRatios::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
