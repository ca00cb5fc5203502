#include "kamC_BaselineCorrection.h"

#include "kamC_assert.h"

DD_DEFINE_ROOT(kamC_BaselineCorrection, kamC_Module)

void kamC_BaselineCorrection::Rules(mdl_RuleVisitor& v) const {
    // A first end that is no number passes; a later one does not, nor one after it.
    for (int i = 0; i < intervals.Size(); ++i)
        if (!v.Rule(i == 0 ? !(intervals.ConstGet(i) < 0.0)
                           : intervals.ConstGet(i) > intervals.ConstGet(i - 1),
                    19))
            return;
}
