#include "kbpC_BoxProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_BoxProfile, kbpC_Module)

void kbpC_BoxProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(b > 0.0, 7);
    v.Rule(a > 0.0, 8);
    if (uniformThickness) {
        v.Rule(t1 > 0.0, 10);
        v.Rule(a > 2.0 * t1, 15);
        v.Rule(b > 2.0 * t1, 16);
    } else {
        for (double const thickness : {t1, t2, t3, t4}) v.Rule(thickness > 0.0, 11);
        v.Rule(a > t1 + t3, 13);
        v.Rule(b > t2 + t4, 14);
    }
}

int kbpC_BoxProfile::NumTempPoints(bool) const { return 4; }
