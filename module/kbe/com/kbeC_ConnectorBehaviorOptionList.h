#pragma once

#include "cow_Virtual.h"
#include "kbeC_ConnectorBehaviorOption.h"
#include "mdl_1DArrayList.h"

/// The behaviours of a connector section, of any class, each behind a handle that copies by its own
/// Copy(). Their order is kept, and a handle may be empty.
using kbeC_ConnectorBehaviorOptionList = mdl_1DArrayList<
    cow_ArrayCOW<kbeC_ConnectorBehaviorOption, cow_Virtual<kbeC_ConnectorBehaviorOption>>,
    kbeC_ConnectorBehaviorOption>;
