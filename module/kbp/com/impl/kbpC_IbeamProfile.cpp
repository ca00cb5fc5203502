#include "kbpC_IbeamProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_IbeamProfile, kbpC_Module)

void kbpC_IbeamProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(h > 0.0, 7);
    v.Rule(t3 > 0.0, 18);
    if (b1 > 0.0 && b2 > 0.0) {
        v.Rule(t1 > 0.0 && t2 > 0.0 && t3 > 0.0, 11);
    } else if (b1 > 0.0) {
        v.Rule(t1 > 0.0, 20);
    } else {
        v.Rule(b2 > 0.0, 19);
        v.Rule(t2 > 0.0, 21);
    }
}

int kbpC_IbeamProfile::NumTempPoints(bool flag) const { return flag ? 5 : 3; }
