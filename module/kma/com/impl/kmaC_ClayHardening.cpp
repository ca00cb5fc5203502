#include "kmaC_ClayHardening.h"

DD_DEFINE(kmaC_ClayHardening, kmaC_Module)

void kmaC_ClayHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
