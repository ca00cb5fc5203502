#include "kbeC_ConnectorStop.h"

#include "kbeC_LimitRules.h"

DD_DEFINE(kbeC_ConnectorStop, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorStop)

void kbeC_ConnectorStop::Rules(mdl_RuleVisitor& v) const {
    kbe::RequireComponents(v, components);
    v.Rule(kbe::IsSet(minMotion) || kbe::IsSet(maxMotion), 1);
    v.Rule(kbe::AreInOrder(minMotion, maxMotion), 14);
}

bool kbeC_ConnectorStop::operator==(kbeC_ConnectorStop const& other) const {
    return minMotion == other.minMotion && maxMotion == other.maxMotion &&
           components.IsEqual(other.components);
}
