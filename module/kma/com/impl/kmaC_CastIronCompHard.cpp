#include "kmaC_CastIronCompHard.h"

DD_DEFINE(kmaC_CastIronCompHard, kmaC_Module)

void kmaC_CastIronCompHard::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
