#include "kmaC_JointedMaterial.h"

DD_DEFINE_UNSCRIPTED(kmaC_JointedMaterial, kmaC_Module)

void kmaC_JointedMaterial::Rules(mdl_RuleVisitor& v) const {
    v.Ask(bulkFailure);
    v.Ask(firstDirection);
    v.Ask(secondDirection);
    v.Ask(thirdDirection);
    v.Ask(jointShearRetention);
}
