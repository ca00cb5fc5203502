#include "kflC_Chebyshev1Filter.h"

#include "kflC_assert.h"

DD_DEFINE(kflC_Chebyshev1Filter, kflC_Module)

void kflC_Chebyshev1Filter::Rules(mdl_RuleVisitor& v) const {
    v.Rule(cutoffFrequency > 0.0, 0);
    v.Rule(rippleFactor > 0.0, 2);
    v.Rule(order >= 1 && order < 21, 1);
}
