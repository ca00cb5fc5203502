#include "kmaC_MohrCoulomb.h"

DD_DEFINE(kmaC_MohrCoulomb, kmaC_Module)

void kmaC_MohrCoulomb::Rules(mdl_RuleVisitor& v) const {
    v.Rule(deviatoricEccentricity == kmaC_NotSet ||
               (deviatoricEccentricity > 0.5 && deviatoricEccentricity <= 1.0),
           33);
    v.Rule(dependencies >= 0, 0);
    // The hardening is not asked: a failure inside it stays unseen.
    v.Ask(table);
}
