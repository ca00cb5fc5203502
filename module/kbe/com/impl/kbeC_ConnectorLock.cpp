#include "kbeC_ConnectorLock.h"

#include "kbeC_LimitRules.h"

DD_DEFINE(kbeC_ConnectorLock, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorLock)

void kbeC_ConnectorLock::Rules(mdl_RuleVisitor& v) const {
    kbe::LimitRules(*this, lockingComponent, v);
}

bool kbeC_ConnectorLock::operator==(kbeC_ConnectorLock const& other) const {
    return lockingComponent == other.lockingComponent && kbe::EqualLimits(*this, other);
}
