#include "kmaC_MembraneElastic.h"

DD_DEFINE(kmaC_MembraneElastic, kmaC_Module)

void kmaC_MembraneElastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
