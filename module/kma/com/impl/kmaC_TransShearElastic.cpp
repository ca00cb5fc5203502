#include "kmaC_TransShearElastic.h"

DD_DEFINE(kmaC_TransShearElastic, kmaC_Module)

void kmaC_TransShearElastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
