#include "kmaC_ConcreteTensionStiffening.h"

DD_DEFINE(kmaC_ConcreteTensionStiffening, kmaC_Module)

void kmaC_ConcreteTensionStiffening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
