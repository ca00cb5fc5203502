#include "kmaC_LatentHeat.h"

DD_DEFINE(kmaC_LatentHeat, kmaC_Module)

void kmaC_LatentHeat::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
