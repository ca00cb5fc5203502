#include "kamC_SolutionDependent.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_SolutionDependent, kamC_Module)

void kamC_SolutionDependent::Rules(mdl_RuleVisitor& v) const {
    v.Rule(maximum >= initial && initial >= minimum, 20);
}
