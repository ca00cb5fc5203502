#include "klcC_LoadCase.h"

#include "klcC_assert.h"

DD_DEFINE_ROOT(klcC_LoadCase, klcC_Module)

namespace {

bool NoneIsZero(cls_xpMapString2Float const& factors) {
    cow_ConstMapIterator<cow_String, float> position(factors);
    for (position.First(); !position.IsDone(); position.Next())
        if (!(position.CurrentValue() != 0.0f)) return false;
    return true;
}

}  // namespace

void klcC_LoadCase::Rules(mdl_RuleVisitor& v) const {
    // Not in the order of the schema.
    v.Rule(NoneIsZero(boundaryConditions), 0);
    v.Rule(NoneIsZero(loads), 0);
    v.Rule(NoneIsZero(fields), 0);
}
