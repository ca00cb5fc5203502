#include "kmaC_BulkFailure.h"

DD_DEFINE_UNSCRIPTED(kmaC_BulkFailure, kmaC_Module)

void kmaC_BulkFailure::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
