#include "kmaC_Depvar.h"

DD_DEFINE(kmaC_Depvar, kmaC_Module)

void kmaC_Depvar::Rules(mdl_RuleVisitor& v) const {
    v.Rule(n >= 0, 17);
    v.Rule(deleteVar >= 0, 13);
}
