#pragma once

#include "omu_PrimEnum.h"

/// What scripts may give in place of a filter: the one that the solver defines. No field holds it.
enum class kflC_DefaultFilterEnm : unsigned { ANTIALIASING };

constexpr omu_EnumRow kflC_DefaultFilterEnmRows[] = {
    {"ANTIALIASING", static_cast<unsigned>(kflC_DefaultFilterEnm::ANTIALIASING)}, {nullptr, 0}};
constexpr omu_EnumRow const* omu_Rows(kflC_DefaultFilterEnm) { return kflC_DefaultFilterEnmRows; }
