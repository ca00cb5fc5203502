#include "kmaC_VoidNucleation.h"

DD_DEFINE(kmaC_VoidNucleation, kmaC_Module)

void kmaC_VoidNucleation::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
