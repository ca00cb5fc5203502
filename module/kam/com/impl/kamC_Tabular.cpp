#include "kamC_Tabular.h"

#include "kamC_Rules.h"
#include "kamC_assert.h"

DD_DEFINE(kamC_Tabular, kamC_Module)

void kamC_Tabular::Rules(mdl_RuleVisitor& v) const {
    v.Rule(kamC_IsSmoothing(smooth), 2);
    kamC_TimeTableRules(v, data);
    v.Ask(baselineCorrection);
}
