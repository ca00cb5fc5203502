#include "kmaC_SaturationDependence.h"

DD_DEFINE(kmaC_SaturationDependence, kmaC_Module)

void kmaC_SaturationDependence::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
