#include "kmaC_Dielectric.h"

DD_DEFINE(kmaC_Dielectric, kmaC_Module)

void kmaC_Dielectric::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
