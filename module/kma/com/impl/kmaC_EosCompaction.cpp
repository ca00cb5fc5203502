#include "kmaC_EosCompaction.h"

DD_DEFINE(kmaC_EosCompaction, kmaC_Module)

// Any value is accepted.
void kmaC_EosCompaction::Rules(mdl_RuleVisitor&) const {}
