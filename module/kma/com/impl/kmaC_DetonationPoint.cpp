#include "kmaC_DetonationPoint.h"

DD_DEFINE(kmaC_DetonationPoint, kmaC_Module)

void kmaC_DetonationPoint::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
