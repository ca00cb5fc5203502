#include "kbeC_ConnectorBehaviorOption.h"

#include "DDB_DeepCopy.h"

DD_DEFINE_ABSTRACT(kbeC_ConnectorBehaviorOption, kbeC_Module)

kbeC_ConnectorBehaviorOption::kbeC_ConnectorBehaviorOption() = default;
kbeC_ConnectorBehaviorOption::kbeC_ConnectorBehaviorOption(kbeC_ConnectorBehaviorOption const&) =
    default;
kbeC_ConnectorBehaviorOption& kbeC_ConnectorBehaviorOption::operator=(
    kbeC_ConnectorBehaviorOption const&) = default;

// The visitor is over the record of the concrete class, so both levels come back with its identity.
// They are records of different classes, which keeps them apart.
kbeC_ConnectorBehaviorOption::kbeC_ConnectorBehaviorOption(cls_ReadVisitor const& visitor)
    : uid(visitor.GetUid()) {}

kbeC_ConnectorBehaviorOption* kbeC_ConnectorBehaviorOption::DeepCopy() const {
    return DDB_DeepCopyPtr(this, DynTypeId());
}
