#include "kmaC_CastIronTensHard.h"

DD_DEFINE(kmaC_CastIronTensHard, kmaC_Module)

void kmaC_CastIronTensHard::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
