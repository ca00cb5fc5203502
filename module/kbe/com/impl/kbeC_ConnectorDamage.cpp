#include "kbeC_ConnectorDamage.h"

#include "kbeC_CommonRules.h"
#include "mdl_TableRows.h"

DD_DEFINE(kbeC_ConnectorDamage, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorDamage)

namespace {

// A table too narrow for the column that a walk reads is not walked: its shape fails later.

bool HasRowWithoutLimits(mdl_PropertyTable const& table) {
    if (table.Columns() < 2) return false;
    for (int row = 0; row < table.Rows(); ++row)
        if (table.Cell(row, 0) == kbeC_ConnectorDamage::noLowerLimit &&
            table.Cell(row, 1) == kbeC_ConnectorDamage::noUpperLimit)
            return true;
    return false;
}

bool HasPositiveParameters(mdl_PropertyTable const& table) {
    if (table.Columns() < 2) return true;
    for (int row = 0; row < table.Rows(); ++row)
        if (!(table.Cell(row, 1) > 0.0)) return false;
    return true;
}

void TabularRules(mdl_PropertyTable const& table, mdl_RuleVisitor& v) {
    if (table.Columns() < 1) return;
    bool bad = false;
    for (int row = 0; row < table.Rows(); ++row) {
        double const damage = table.Cell(row, 0);
        if (damage < 0.0 || damage > 1.0)
            bad = true;
        else if (row > 0 && !bad && !v.Rule(!mdl_IsBlankRow(table.table, row), 49))
            return;
    }
    v.Rule(!bad, 48);
    // Damage may begin with a row of zeros, but then there is to be more.
    if (table.Rows() == 1 && mdl_IsBlankRow(table.table, 0)) v.Ask(table);
}

}  // namespace

void kbeC_ConnectorDamage::Rules(mdl_RuleVisitor& v) const {
    if (coupling == CouplingEnm::UNCOUPLED) {
        kbe::RequireComponents(v, components);
    } else if (coupling == CouplingEnm::COUPLED) {
        if (initiationPotentialOperator == InitiationPotentialOperatorEnm::SUM)
            v.Rule(!(initiationPotentialExponent <= 0.0), 41);
        if (evolutionPotentialOperator == EvolutionPotentialOperatorEnm::SUM)
            v.Rule(!(evolutionPotentialExponent <= 0.0), 41);
    }
    v.Rule(!useAffected || affectedComponents.Size() > 0, 46);

    bool const isPlastic = criterion == CriterionEnm::PLASTIC_MOTION;
    bool const isModeMixed = isPlastic && coupling == CouplingEnm::COUPLED;
    if (isPlastic)
        v.Ask(initiationTable);
    else
        v.Rule(!HasRowWithoutLimits(initiationTable), 47);
    v.Rule(initiationTable.Columns() ==
               kbe::Sum(isModeMixed ? 3 : 2, initiationTemperature, initiationDependencies),
           45);

    if (evolution) {
        if (softening == SofteningEnm::TABULAR) TabularRules(evolutionTable, v);
        if (softening == SofteningEnm::EXPONENTIAL)
            v.Rule(HasPositiveParameters(evolutionTable), 50);
        bool const isSingle =
            evolutionType == EvolutionTypeEnm::ENERGY_TYPE || softening == SofteningEnm::LINEAR;
        v.Rule(evolutionTable.Columns() == kbe::Sum(isSingle ? 1 : 2, isModeMixed,
                                                    evolutionTemperature, evolutionDependencies),
               45);
    }
    if (!isPlastic)
        kbe::RequireDefaultRate(v, initiationOptions,
                                "Damage; initiation criteria must be PLASTIC_MOTION");
    if (evolution) kbe::RequireDefaultRate(v, evolutionOptions, "Damage; evolution");
}

bool kbeC_ConnectorDamage::operator==(kbeC_ConnectorDamage const& other) const {
    return coupling == other.coupling && criterion == other.criterion &&
           initiationTemperature == other.initiationTemperature &&
           initiationPotentialOperator == other.initiationPotentialOperator &&
           initiationPotentialExponent == other.initiationPotentialExponent &&
           initiationDependencies == other.initiationDependencies && evolution == other.evolution &&
           evolutionType == other.evolutionType && softening == other.softening &&
           useAffected == other.useAffected && degradation == other.degradation &&
           evolutionTemperature == other.evolutionTemperature &&
           evolutionDependencies == other.evolutionDependencies &&
           evolutionPotentialOperator == other.evolutionPotentialOperator &&
           evolutionPotentialExponent == other.evolutionPotentialExponent &&
           initiationTable == other.initiationTable && evolutionTable == other.evolutionTable &&
           affectedComponents.IsEqual(other.affectedComponents) &&
           components.IsEqual(other.components) &&
           initiationPotentials.IsEqual(other.initiationPotentials) &&
           evolutionPotentials.IsEqual(other.evolutionPotentials) &&
           kbe::EqualIfPresent(initiationOptions, other.initiationOptions) &&
           kbe::EqualIfPresent(evolutionOptions, other.evolutionOptions);
}

long long kbeC_ConnectorDamage::InitiationKeyColumns() const {
    return kbe::Sum(initiationDependencies, initiationTemperature,
                    criterion == CriterionEnm::PLASTIC_MOTION);
}

long long kbeC_ConnectorDamage::EvolutionKeyColumns() const {
    return kbe::Sum(evolutionDependencies, evolutionTemperature,
                    softening == SofteningEnm::TABULAR);
}

void kbeC_ConnectorDamage::SortDataTable() {
    kbe::Sort(initiationTable, InitiationKeyColumns());
    if (evolution) kbe::Sort(evolutionTable, EvolutionKeyColumns());
}
