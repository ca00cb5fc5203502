#include "kmaC_PorousBulkModuli.h"

DD_DEFINE(kmaC_PorousBulkModuli, kmaC_Module)

void kmaC_PorousBulkModuli::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
