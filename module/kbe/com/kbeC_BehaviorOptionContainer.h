#pragma once

#include "kbeC_ConnectorBehaviorOption.h"
#include "mdl_MapOfCowsRepository.h"

/// The repository of connector behaviours, under numbers. It is no extension of the model.
using kbeC_BehaviorOptionContainer = mdl_MapOfCowsRepository<int, kbeC_ConnectorBehaviorOption>;

template <>
struct mdl_RepositoryTraits<kbeC_BehaviorOptionContainer> {
    static constexpr unsigned typeId = 0x2A80007;
    static constexpr char const* name = "kbeC_BehaviorOptionContainer";
    static constexpr int version = 507;
};
