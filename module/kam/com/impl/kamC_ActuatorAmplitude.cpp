#include "kamC_ActuatorAmplitude.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_ActuatorAmplitude, kamC_Module)

void kamC_ActuatorAmplitude::Rules(mdl_RuleVisitor&) const {}
