#pragma once

#include "kmaC_MaterialOption.h"

/// A placeholder among the options: no member of any class holds it, and nothing makes one.
class kmaC_Unimplemented : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_Unimplemented, kmaC_MaterialOption, 0x2380059, 203)
public:
    DD_FIELD_UNSCRIPTED(int, dependencies, 0)
    DD_END
};
