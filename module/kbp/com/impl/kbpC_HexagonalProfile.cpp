#include "kbpC_HexagonalProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_HexagonalProfile, kbpC_Module)

void kbpC_HexagonalProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(r > 0.0, 9);
    v.Rule(t > 0.0, 27);
    // Not the root that the message names: a thickness between the two must fail as it always has.
    v.Rule(r * 0.866 > t, 22);
}

int kbpC_HexagonalProfile::NumTempPoints(bool flag) const { return flag ? 6 : 4; }
