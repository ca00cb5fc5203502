#pragma once

#include "kmaC_MaterialOption.h"

/// A gasket's stiffness against transverse shear, as stress or as force over displacement.
class kmaC_TransShearElastic : public kmaC_MaterialOption {
    DD_CLASS(kmaC_TransShearElastic, kmaC_MaterialOption, 0x238005C, 404,
             "GasketTransverseShearElastic")
public:
    DD_ENUM(VariableUnitsEnm, STRESS, FORCE)

    DD_FIELD(VariableUnitsEnm, variableUnits, VariableUnitsEnm::STRESS)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table)
    DD_END
};
