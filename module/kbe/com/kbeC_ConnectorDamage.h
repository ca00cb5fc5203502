#pragma once

#include "kbeC_ConnectorBehaviorOption.h"
#include "kbeC_ConnectorPotential.h"

/// When damage begins, and how it evolves, each with a table, potentials and options of its own.
/// Uncoupled it names its components; coupled it is defined through force potentials.
class kbeC_ConnectorDamage : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorDamage, kbeC_ConnectorBehaviorOption, 0x2A8001E, 1022, "ConnectorDamage")
public:
    KBE_EQUALITY(kbeC_ConnectorDamage)

    DD_ENUM(CouplingEnm, UNCOUPLED, COUPLED)
    DD_ENUM(CriterionEnm, FORCE, MOTION, PLASTIC_MOTION)
    DD_ENUM(EvolutionTypeEnm, MOTION_TYPE, ENERGY_TYPE)
    DD_ENUM(SofteningEnm, LINEAR, EXPONENTIAL, TABULAR)
    DD_ENUM(DegradationEnm, MAXIMUM, MULTIPLICATIVE)
    DD_ENUM(InitiationPotentialOperatorEnm, SUM, MAXIMUM)
    DD_ENUM(EvolutionPotentialOperatorEnm, SUM, MAXIMUM)

    /// What stands for a lower and an upper limit in a row of the initiation table that has none.
    static constexpr double noLowerLimit = -1e36;
    static constexpr double noUpperLimit = 1e36;

    DD_FIELD(CouplingEnm, coupling, CouplingEnm::UNCOUPLED)
    DD_FIELD(CriterionEnm, criterion, CriterionEnm::FORCE)
    DD_FIELD(bool, initiationTemperature, false)
    DD_FIELD(InitiationPotentialOperatorEnm, initiationPotentialOperator,
             InitiationPotentialOperatorEnm::SUM)
    DD_FIELD(double, initiationPotentialExponent, 2.0)
    DD_FIELD(int, initiationDependencies, 0)
    DD_FIELD(bool, evolution, true)
    DD_FIELD(EvolutionTypeEnm, evolutionType, EvolutionTypeEnm::MOTION_TYPE)
    DD_FIELD(SofteningEnm, softening, SofteningEnm::LINEAR)
    DD_FIELD(bool, useAffected, false)
    DD_FIELD(DegradationEnm, degradation, DegradationEnm::MAXIMUM)
    DD_FIELD(bool, evolutionTemperature, false)
    DD_FIELD(int, evolutionDependencies, 0)
    DD_FIELD(EvolutionPotentialOperatorEnm, evolutionPotentialOperator,
             EvolutionPotentialOperatorEnm::SUM)
    DD_FIELD(double, evolutionPotentialExponent, 2.0)
    DD_FIELD(cls_xo1DArrayList<kbeC_ConnectorPotential>, initiationPotentials)
    DD_FIELD(cls_xo1DArrayList<kbeC_ConnectorPotential>, evolutionPotentials)
    DD_FIELD(mdl_PropertyTable, initiationTable)
    DD_FIELD(mdl_PropertyTable, evolutionTable)
    DD_FIELD(cls_xp1DArrayListInt, affectedComponents)
    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, initiationOptions)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, evolutionOptions)
    DD_END

    /// How many columns at each table's end are keys of its rows. A table of several rows that has
    /// fewer is not to be sorted: that ends the process.
    long long InitiationKeyColumns() const;
    long long EvolutionKeyColumns() const;
    /// Orders the rows by their keys; those of the evolution only where it is in use.
    void SortDataTable();
};
