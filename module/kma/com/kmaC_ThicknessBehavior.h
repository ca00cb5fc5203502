#pragma once

#include "kmaC_ContactArea.h"
#include "kmaC_MaterialOption.h"

/// A gasket's pressure, or force a unit of length, against its closure, on loading and unloading.
class kmaC_ThicknessBehavior : public kmaC_MaterialOption {
    DD_CLASS(kmaC_ThicknessBehavior, kmaC_MaterialOption, 0x238005D, 404, "GasketThicknessBehavior")
public:
    DD_ENUM(TypeEnm, ELASTIC_PLASTIC, DAMAGE)
    DD_ENUM(VariableUnitsEnm, STRESS, FORCE)
    DD_ENUM(YieldOnsetMethodEnm, RELATIVE_SLOPE_DROP, CLOSURE_VALUE)

    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    /// Tensile stiffness as a share of the initial compressive stiffness.
    DD_FIELD(double, tensileStiffnessFactor, 0.001)
    DD_FIELD(TypeEnm, type, TypeEnm::ELASTIC_PLASTIC)
    DD_FIELD(int, unloadingDependencies, 0)
    DD_FIELD(bool, unloadingTemperatureDependency, false)
    DD_FIELD(VariableUnitsEnm, variableUnits, VariableUnitsEnm::STRESS)
    /// Closure, or relative drop of the slope, at which yield starts.
    DD_FIELD(double, yieldOnset, 0.1)
    DD_FIELD(YieldOnsetMethodEnm, yieldOnsetMethod, YieldOnsetMethodEnm::RELATIVE_SLOPE_DROP)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_FIELD(kmaC_MaterialTable, unloadingTable, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(kmaC_ContactArea, contactArea)
    DD_END
};
