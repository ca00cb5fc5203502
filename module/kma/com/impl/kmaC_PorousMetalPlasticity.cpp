#include "kmaC_PorousMetalPlasticity.h"

DD_DEFINE(kmaC_PorousMetalPlasticity, kmaC_Module)

void kmaC_PorousMetalPlasticity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The sub-options are asked in the reverse of the schema.
    v.Ask(voidNucleation);
    v.Ask(porousFailureCriteria);
    v.Ask(table);
}
