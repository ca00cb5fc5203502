#include "kmaC_UserMaterial.h"

DD_DEFINE(kmaC_UserMaterial, kmaC_Module)

void kmaC_UserMaterial::Rules(mdl_RuleVisitor& v) const {
    // Counts are never negative, so this holds always, and two empty lists pass.
    long long const constants =
        static_cast<long long>(mechanicalConstants.Size()) + thermalConstants.Size();
    v.Rule(constants >= 0, 8);
}
