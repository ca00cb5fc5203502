#include "kbeC_TangentialBehavior.h"

#include "mdl_TableRows.h"

DD_DEFINE_ROOT(kbeC_TangentialBehavior, kbeC_Module)

namespace {

// What a table lacks is not read, so each of these ends with the first rule on its shape that
// fails. The answer is whether to go on.

bool PenaltyRules(kbeC_TangentialBehavior const& law, mdl_RuleVisitor& v) {
    int const columns = law.table.Columns();
    int const needed = law.slipRateDependency ? 2 : 1;
    if (!v.Rule(columns >= 1, 31)) return false;
    if (!v.Rule(columns >= needed, 20)) return false;
    for (int row = 0; row < law.table.Rows(); ++row) {
        if (!v.Rule(law.table.Cell(row, 0) >= 0.0, 24)) return false;
        if (law.slipRateDependency && !v.Rule(law.table.Cell(row, 1) >= 0.0, 26)) return false;
        if (!law.pressureDependency) continue;
        if (!v.Rule(columns > needed, 20)) return false;
        if (!v.Rule(law.table.Cell(row, needed) >= 0.0, 25)) return false;
    }
    v.Rule(law.shearStressLimit > 0.0, 28);
    return true;
}

bool CoefficientRules(cow_2DArray<double> const& table, mdl_RuleVisitor& v) {
    if (!v.Rule(table.Columns() >= 3 && table.Rows() >= 1, 33)) return false;
    for (int column = 0; column < table.Columns() - 1; ++column)
        if (!v.Rule(table.Cell(0, column) >= 0.0, 24)) return false;
    v.Rule(table.Cell(0, 0) - table.Cell(0, 1) >= 0.0, 21);
    v.Rule(table.Cell(0, 2) >= 0.0, 23);
    return true;
}

bool TestDataRules(cow_2DArray<double> const& table, mdl_RuleVisitor& v) {
    if (!v.Rule(table.Columns() >= 2, 31)) return false;
    if (!v.Rule(table.Columns() >= 3 && table.Rows() >= 1, 32)) return false;
    v.Rule(table.Cell(0, 2) > 0.0, 29);
    return true;
}

}  // namespace

void kbeC_TangentialBehavior::Rules(mdl_RuleVisitor& v) const {
    if (formulation == FormulationEnm::PENALTY) {
        if (!PenaltyRules(*this, v)) return;
    } else if (formulation == FormulationEnm::EXPONENTIAL_DECAY) {
        using Definition = ExponentialDecayDefinitionEnm;
        if (exponentialDecayDefinition == Definition::COEFFICIENTS) {
            if (!CoefficientRules(table, v)) return;
        } else if (exponentialDecayDefinition == Definition::TEST_DATA) {
            if (!TestDataRules(table, v)) return;
        }
    } else {
        return;
    }
    if (maximumElasticSlip == MaximumElasticSlipEnm::FRACTION)
        v.Rule(fraction > 0.0, 30);
    else if (maximumElasticSlip == MaximumElasticSlipEnm::ABSOLUTE_DISTANCE)
        v.Rule(absoluteDistance > 0.0, 22);
}

bool kbeC_TangentialBehavior::operator==(kbeC_TangentialBehavior const& other) const {
    return formulation == other.formulation && slipRateDependency == other.slipRateDependency &&
           pressureDependency == other.pressureDependency &&
           temperatureDependency == other.temperatureDependency &&
           dependencies == other.dependencies &&
           exponentialDecayDefinition == other.exponentialDecayDefinition &&
           shearStressLimit == other.shearStressLimit &&
           maximumElasticSlip == other.maximumElasticSlip && fraction == other.fraction &&
           absoluteDistance == other.absoluteDistance && mdl_EqualCells(table, other.table);
}
