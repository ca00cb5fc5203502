#include "kamC_SmoothStep.h"

#include "kamC_Rules.h"
#include "kamC_assert.h"

DD_DEFINE(kamC_SmoothStep, kamC_Module)

void kamC_SmoothStep::Rules(mdl_RuleVisitor& v) const { kamC_TimeTableRules(v, data); }
