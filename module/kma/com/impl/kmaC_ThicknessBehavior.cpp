#include "kmaC_ThicknessBehavior.h"

DD_DEFINE(kmaC_ThicknessBehavior, kmaC_Module)

void kmaC_ThicknessBehavior::Rules(mdl_RuleVisitor& v) const {
    v.Rule(yieldOnset > 0.0, yieldOnsetMethod == YieldOnsetMethodEnm::CLOSURE_VALUE ? 25 : 26);
    v.Rule(tensileStiffnessFactor > 0.0, 27);
    v.Rule(dependencies >= 0, 0);
    v.Rule(unloadingDependencies >= 0, 28);
    if (type == TypeEnm::ELASTIC_PLASTIC) v.Rule(table.Rows() > 2, 29);
    if (type == TypeEnm::DAMAGE) v.Rule(table.Rows() > 1, 30);
    v.Rule(table.Rows() > 0 && table.Columns() > 0 && table.Cell(0, 0) == 0.0, 31);
    v.Ask(table);
    if (unloadingTable.Rows() >= 1 || unloadingTable.Columns() >= 1) v.Ask(unloadingTable);
    if (contactArea.GetPtr()) {
        v.Rule(variableUnits == VariableUnitsEnm::FORCE, 32);
        v.Ask(contactArea);
    }
}
