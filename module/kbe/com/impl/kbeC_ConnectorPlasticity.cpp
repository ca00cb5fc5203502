#include "kbeC_ConnectorPlasticity.h"

#include "kbeC_CommonRules.h"

DD_DEFINE(kbeC_ConnectorPlasticity, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorPlasticity)

void kbeC_ConnectorPlasticity::Rules(mdl_RuleVisitor& v) const {
    if (coupling == CouplingEnm::UNCOUPLED)
        kbe::RequireComponents(v, components);
    else if (coupling == CouplingEnm::COUPLED &&
             forcePotentialOperator == ForcePotentialOperatorEnm::SUM)
        v.Rule(!(forcePotentialExponent <= 0.0), 41);
    v.Rule(isotropic || kinematic, 43);
    if (isotropic) {
        v.Ask(isotropicTable);
        v.Rule(kbe::HasValueInFirstColumn(isotropicTable), 44);
        v.Rule(isotropicTable.Columns() == kbe::Sum(3, isotropicTemperature, isotropicDependencies),
               45);
    }
    if (kinematic) {
        int const data = kinematicType == KinematicTypeEnm::HALF_CYCLE ? 2 : 3;
        v.Ask(kinematicTable);
        v.Rule(kbe::HasValueInFirstColumn(kinematicTable), 44);
        v.Rule(
            kinematicTable.Columns() == kbe::Sum(data, kinematicTemperature, kinematicDependencies),
            45);
    }
    if (isotropic && isotropicType != IsotropicTypeEnm::TABULAR)
        kbe::RequireDefaultRate(v, isotropicOptions,
                                "Plasticity; isotropic definition must be TABULAR");
    if (kinematic) kbe::RequireDefaultRate(v, kinematicOptions, "Plasticity; kinematic");
}

bool kbeC_ConnectorPlasticity::operator==(kbeC_ConnectorPlasticity const& other) const {
    return coupling == other.coupling && isotropic == other.isotropic &&
           isotropicType == other.isotropicType &&
           isotropicTemperature == other.isotropicTemperature &&
           isotropicDependencies == other.isotropicDependencies && kinematic == other.kinematic &&
           kinematicType == other.kinematicType &&
           kinematicTemperature == other.kinematicTemperature &&
           kinematicDependencies == other.kinematicDependencies &&
           forcePotentialOperator == other.forcePotentialOperator &&
           forcePotentialExponent == other.forcePotentialExponent &&
           connectorPotentials.IsEqual(other.connectorPotentials) &&
           isotropicTable == other.isotropicTable && kinematicTable == other.kinematicTable &&
           components.IsEqual(other.components) &&
           kbe::EqualIfPresent(isotropicOptions, other.isotropicOptions) &&
           kbe::EqualIfPresent(kinematicOptions, other.kinematicOptions);
}

long long kbeC_ConnectorPlasticity::IsotropicKeyColumns() const {
    return kbe::Sum(isotropicDependencies, isotropicTemperature,
                    isotropicType == IsotropicTypeEnm::TABULAR);
}

long long kbeC_ConnectorPlasticity::KinematicKeyColumns() const {
    return kbe::Sum(kinematicDependencies, kinematicTemperature,
                    kinematicType != KinematicTypeEnm::PARAMETERS);
}

void kbeC_ConnectorPlasticity::SortDataTable() {
    if (isotropic) kbe::Sort(isotropicTable, IsotropicKeyColumns());
    if (kinematic) kbe::Sort(kinematicTable, KinematicKeyColumns());
}
