#pragma once

#include "cow_Virtual.h"
#include "kmaC_MaterialOption.h"
#include "mdl_1DArrayList.h"

/// A list of material options of any class, each behind a handle that copies by its own Copy().
using kmaC_MaterialOptionList =
    mdl_1DArrayList<cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>,
                    kmaC_MaterialOption>;
