#include "kmaC_GapFlow.h"

DD_DEFINE(kmaC_GapFlow, kmaC_Module)

void kmaC_GapFlow::Rules(mdl_RuleVisitor& v) const {
    // Neither the number of dependencies nor the greatest permeability is looked at.
    v.Ask(table);
}
