#pragma once

#include "kmaC_MaterialOption.h"

/// Coupling of electrical field and stress or strain.
class kmaC_Piezoelectric : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Piezoelectric, kmaC_MaterialOption, 0x238003A, 516, "Piezoelectric")
public:
    DD_ENUM(TypeEnm, STRAIN, STRESS)

    DD_FIELD(TypeEnm, type, TypeEnm::STRESS)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
