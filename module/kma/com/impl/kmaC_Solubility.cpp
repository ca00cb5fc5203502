#include "kmaC_Solubility.h"

DD_DEFINE(kmaC_Solubility, kmaC_Module)

void kmaC_Solubility::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
