#include "kbpC_LbeamProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_LbeamProfile, kbpC_Module)

void kbpC_LbeamProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(a > 0.0, 23);
    v.Rule(b > 0.0, 24);
    v.Rule(t1 > 0.0, 28);
    v.Rule(t2 > 0.0, 29);
    v.Rule(b > t1, 32);
    v.Rule(a > t2, 34);
}

int kbpC_LbeamProfile::NumTempPoints(bool flag) const { return flag ? 3 : 2; }
