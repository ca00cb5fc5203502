#include "kmaC_Diffusivity.h"

DD_DEFINE(kmaC_Diffusivity, kmaC_Module)

void kmaC_Diffusivity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // Asked in the reverse of the schema; the table is not asked.
    v.Ask(soretEffect);
    v.Ask(pressureEffect);
}
