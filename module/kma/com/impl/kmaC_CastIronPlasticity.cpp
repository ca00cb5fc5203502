#include "kmaC_CastIronPlasticity.h"

DD_DEFINE(kmaC_CastIronPlasticity, kmaC_Module)

void kmaC_CastIronPlasticity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    // Compression comes before tension, the reverse of the schema.
    v.Ask(castIronCompHard);
    v.Ask(castIronTensHard);
    v.Ask(table);
}
