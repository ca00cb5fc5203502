#include "kmaC_Permeability.h"

DD_DEFINE(kmaC_Permeability, kmaC_Module)

void kmaC_Permeability::Rules(mdl_RuleVisitor& v) const {
    // Here the table comes before the sub-options.
    v.Ask(table);
    v.Ask(saturationDependence);
    v.Ask(velocityDependence);
}
