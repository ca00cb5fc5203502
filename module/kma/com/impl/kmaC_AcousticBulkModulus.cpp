#include "kmaC_AcousticBulkModulus.h"

DD_DEFINE_UNSCRIPTED(kmaC_AcousticBulkModulus, kmaC_Module)

void kmaC_AcousticBulkModulus::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
