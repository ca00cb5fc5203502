#pragma once

#include "kmaC_MaterialOption.h"

/// When a cracked point is given up: in how many directions it may crack first.
class kmaC_BrittleFailure : public kmaC_MaterialOption {
    DD_CLASS(kmaC_BrittleFailure, kmaC_MaterialOption, 0x2380081, 850, "BrittleFailure")
public:
    DD_ENUM(FailureCriteriaEnm, UNIDIRECTIONAL, BIDIRECTIONAL, TRIDIRECTIONAL)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(FailureCriteriaEnm, failureCriteria, FailureCriteriaEnm::UNIDIRECTIONAL)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
