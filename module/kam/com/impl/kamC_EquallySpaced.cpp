#include "kamC_EquallySpaced.h"

#include "kamC_Rules.h"
#include "kamC_assert.h"

DD_DEFINE(kamC_EquallySpaced, kamC_Module)

void kamC_EquallySpaced::Rules(mdl_RuleVisitor& v) const {
    v.Rule(kamC_IsSmoothing(smooth), 2);
    v.Rule(fixedInterval > 0.0, 9);
    v.Rule(data.Size() >= 2, 12);
    v.Ask(baselineCorrection);
}
