#include "kamC_Modulated.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_Modulated, kamC_Module)

void kamC_Modulated::Rules(mdl_RuleVisitor&) const {}
