#include "kbpC_RectangularProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_RectangularProfile, kbpC_Module)

void kbpC_RectangularProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(a > 0.0, 23);
    v.Rule(b > 0.0, 24);
}

int kbpC_RectangularProfile::NumTempPoints(bool flag) const { return flag ? 4 : 3; }
