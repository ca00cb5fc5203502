#include "kamC_Decay.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_Decay, kamC_Module)

void kamC_Decay::Rules(mdl_RuleVisitor&) const {}
