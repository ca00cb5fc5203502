#include "kmaC_Expansion.h"

DD_DEFINE(kmaC_Expansion, kmaC_Module)

void kmaC_Expansion::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
