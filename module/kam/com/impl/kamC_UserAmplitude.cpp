#include "kamC_UserAmplitude.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_UserAmplitude, kamC_Module)

void kamC_UserAmplitude::Rules(mdl_RuleVisitor&) const {}
