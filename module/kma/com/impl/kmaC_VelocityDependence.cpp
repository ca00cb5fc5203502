#include "kmaC_VelocityDependence.h"

DD_DEFINE(kmaC_VelocityDependence, kmaC_Module)

void kmaC_VelocityDependence::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
