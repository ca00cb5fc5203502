#pragma once

#include "kmaC_MaterialOption.h"

/// Output variables that a user's routine fills.
class kmaC_UserOutputVariables : public kmaC_MaterialOption {
    DD_CLASS(kmaC_UserOutputVariables, kmaC_MaterialOption, 0x2380054, 203, "UserOutputVariables")
public:
    DD_FIELD(int, n, 0)  ///< how many
    DD_END
};
