#include "kbpC_PipeProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_PipeProfile, kbpC_Module)

void kbpC_PipeProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(r > 0.0, 9);
    v.Rule(t > 0.0, 10);
    v.Rule(r > t, 17);
}

int kbpC_PipeProfile::NumTempPoints(bool) const { return 4; }
