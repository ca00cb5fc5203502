#include "kmaC_TensionStiffening.h"

DD_DEFINE(kmaC_TensionStiffening, kmaC_Module)

void kmaC_TensionStiffening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
