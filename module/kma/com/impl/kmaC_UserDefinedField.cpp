#include "kmaC_UserDefinedField.h"

DD_DEFINE(kmaC_UserDefinedField, kmaC_Module)

// Any value is accepted.
void kmaC_UserDefinedField::Rules(mdl_RuleVisitor&) const {}
