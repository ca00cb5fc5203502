#include "kflC_ButterworthFilter.h"

#include "kflC_assert.h"

DD_DEFINE(kflC_ButterworthFilter, kflC_Module)

void kflC_ButterworthFilter::Rules(mdl_RuleVisitor& v) const {
    v.Rule(cutoffFrequency > 0.0, 0);
    v.Rule(order >= 1 && order < 21, 1);
}
