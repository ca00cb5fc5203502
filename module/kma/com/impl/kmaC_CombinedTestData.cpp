#include "kmaC_CombinedTestData.h"

DD_DEFINE(kmaC_CombinedTestData, kmaC_Module)

void kmaC_CombinedTestData::Rules(mdl_RuleVisitor& v) const { v.Ask(table); }
