#include "kmaC_MohrCoulombHardening.h"

DD_DEFINE(kmaC_MohrCoulombHardening, kmaC_Module)

void kmaC_MohrCoulombHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
