#pragma once

#include "kmaC_MaterialOption.h"

/// A user's routine sets the field variables at each point. Its presence is all it says.
class kmaC_UserDefinedField : public kmaC_MaterialOption {
    DD_CLASS(kmaC_UserDefinedField, kmaC_MaterialOption, 0x2380052, 203, "UserDefinedField")
public:
    DD_END
};
