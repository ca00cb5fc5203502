#include "kmaC_BrittleCracking.h"

DD_DEFINE(kmaC_BrittleCracking, kmaC_Module)

void kmaC_BrittleCracking::Rules(mdl_RuleVisitor& v) const {
    // The table comes first, and the number of dependencies is not looked at.
    v.Ask(table);
    v.Ask(brittleShear);
    v.Ask(brittleFailure);
}
