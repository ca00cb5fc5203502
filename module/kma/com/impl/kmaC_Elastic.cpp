#include "kmaC_Elastic.h"

DD_DEFINE(kmaC_Elastic, kmaC_Module)

void kmaC_Elastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(!(noCompression && noTension), 34);
    v.Rule(dependencies >= 0, 0);
    // The limits are asked in the reverse of the schema.
    v.Ask(failStrain);
    v.Ask(failStress);
    v.Ask(table);
}
