#pragma once

#include "kbeC_ConnectorBehaviorOption.h"
#include "kbeC_ConnectorPotential.h"

/// Isotropic and kinematic hardening, each with a table and options of its own. Uncoupled it names
/// its components; coupled it is defined through a force potential.
class kbeC_ConnectorPlasticity : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorPlasticity, kbeC_ConnectorBehaviorOption, 0x2A8001D, 1022,
             "ConnectorPlasticity")
public:
    KBE_EQUALITY(kbeC_ConnectorPlasticity)

    DD_ENUM(CouplingEnm, UNCOUPLED, COUPLED)
    DD_ENUM(IsotropicTypeEnm, TABULAR, EXPONENTIAL_LAW)
    DD_ENUM(KinematicTypeEnm, HALF_CYCLE, STABILIZED, PARAMETERS)
    DD_ENUM(ForcePotentialOperatorEnm, SUM, MAXIMUM)

    DD_FIELD(CouplingEnm, coupling, CouplingEnm::UNCOUPLED)
    DD_FIELD(bool, isotropic, true)
    DD_FIELD(IsotropicTypeEnm, isotropicType, IsotropicTypeEnm::TABULAR)
    DD_FIELD(bool, isotropicTemperature, false)
    DD_FIELD(int, isotropicDependencies, 0)
    DD_FIELD(bool, kinematic, false)
    DD_FIELD(KinematicTypeEnm, kinematicType, KinematicTypeEnm::HALF_CYCLE)
    DD_FIELD(bool, kinematicTemperature, false)
    DD_FIELD(int, kinematicDependencies, 0)
    DD_FIELD(ForcePotentialOperatorEnm, forcePotentialOperator, ForcePotentialOperatorEnm::SUM)
    DD_FIELD(double, forcePotentialExponent, 2.0)
    DD_FIELD(cls_xo1DArrayList<kbeC_ConnectorPotential>, connectorPotentials)
    DD_FIELD(mdl_PropertyTable, isotropicTable)
    DD_FIELD(mdl_PropertyTable, kinematicTable)
    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, isotropicOptions)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, kinematicOptions)
    DD_END

    /// How many columns at each table's end are keys of its rows. A table of several rows that has
    /// fewer is not to be sorted: that ends the process.
    long long IsotropicKeyColumns() const;
    long long KinematicKeyColumns() const;
    /// Orders the rows of the tables that are in use by their keys.
    void SortDataTable();
};
