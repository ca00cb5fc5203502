#include "kbpC_TbeamProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_TbeamProfile, kbpC_Module)

void kbpC_TbeamProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(b > 0.0, 24);
    v.Rule(h > 0.0, 26);
    // Each of these two reports the other's message, as callers know them.
    v.Rule(tf > 0.0, 31);
    v.Rule(tw > 0.0, 30);
    v.Rule(h > tf, 36);
    v.Rule(b > tw, 37);
}

int kbpC_TbeamProfile::NumTempPoints(bool flag) const { return flag ? 5 : 3; }
