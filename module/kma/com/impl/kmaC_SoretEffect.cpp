#include "kmaC_SoretEffect.h"

DD_DEFINE(kmaC_SoretEffect, kmaC_Module)

void kmaC_SoretEffect::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
