#include "kbeC_ConnectorFailure.h"

#include "kbeC_LimitRules.h"

DD_DEFINE(kbeC_ConnectorFailure, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorFailure)

void kbeC_ConnectorFailure::Rules(mdl_RuleVisitor& v) const {
    kbe::LimitRules(*this, releaseComponent, v);
}

bool kbeC_ConnectorFailure::operator==(kbeC_ConnectorFailure const& other) const {
    return releaseComponent == other.releaseComponent && kbe::EqualLimits(*this, other);
}
