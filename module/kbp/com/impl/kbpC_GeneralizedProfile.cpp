#include "kbpC_GeneralizedProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_GeneralizedProfile, kbpC_Module)

void kbpC_GeneralizedProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(area > 0.0, 0);
    v.Rule(i11 > 0.0, 1);
    if (i22 > 0.0) {
        double const mean = (i11 + i22) / 2.0;
        v.Rule(-mean < i12 && i12 <= mean, 6);
    } else if (i22 == 0.0) {
        v.Rule(i12 == 0.0, 2);
    }
    // A negative i22 passes, though there is a message for it: models that have one must stay
    // valid.
    v.Rule(j >= 0.0, 5);
}

int kbpC_GeneralizedProfile::NumTempPoints(bool) const { return 1; }
