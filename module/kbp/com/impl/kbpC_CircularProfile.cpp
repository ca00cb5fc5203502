#include "kbpC_CircularProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_CircularProfile, kbpC_Module)

void kbpC_CircularProfile::Rules(mdl_RuleVisitor& v) const { v.Rule(r > 0.0, 9); }

int kbpC_CircularProfile::NumTempPoints(bool flag) const { return flag ? 4 : 3; }
