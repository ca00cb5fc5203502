#include "kmaC_CycledPlastic.h"

DD_DEFINE(kmaC_CycledPlastic, kmaC_Module)

void kmaC_CycledPlastic::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
