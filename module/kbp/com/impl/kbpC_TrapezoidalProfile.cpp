#include "kbpC_TrapezoidalProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_TrapezoidalProfile, kbpC_Module)

void kbpC_TrapezoidalProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(a > 0.0, 23);
    v.Rule(b > 0.0, 24);
    v.Rule(c > 0.0, 25);
}

int kbpC_TrapezoidalProfile::NumTempPoints(bool flag) const { return flag ? 4 : 3; }
