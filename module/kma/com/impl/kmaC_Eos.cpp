#include "kmaC_Eos.h"

DD_DEFINE(kmaC_Eos, kmaC_Module)

void kmaC_Eos::Rules(mdl_RuleVisitor& v) const {
    if (type != TypeEnm::TABULAR) v.Ask(table);
    v.Ask(eosShear);
    v.Ask(eosCompaction);
    v.Ask(detonationPoint);
}
