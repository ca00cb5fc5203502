#include "kmaC_PressureEffect.h"

DD_DEFINE(kmaC_PressureEffect, kmaC_Module)

void kmaC_PressureEffect::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
