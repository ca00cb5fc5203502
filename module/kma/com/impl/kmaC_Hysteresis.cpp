#include "kmaC_Hysteresis.h"

DD_DEFINE(kmaC_Hysteresis, kmaC_Module)

void kmaC_Hysteresis::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
