#include "kflC_Chebyshev2Filter.h"

#include "kflC_assert.h"

DD_DEFINE(kflC_Chebyshev2Filter, kflC_Module)

void kflC_Chebyshev2Filter::Rules(mdl_RuleVisitor& v) const {
    v.Rule(cutoffFrequency > 0.0, 0);
    v.Rule(rippleFactor > 0.0 && rippleFactor <= 1.0, 3);
    v.Rule(order >= 1 && order < 21, 1);
}
