#pragma once

#include "kbeC_ConnectorBehaviorOption.h"
#include "kbeC_ConnectorOptions.h"
#include "mdl_PropertyTable.h"

/// How the force in some components depends on their velocity.
/// The numbers of components decide how many columns the table must have.
class kbeC_ConnectorDamping : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorDamping, kbeC_ConnectorBehaviorOption, 0x2A80018, 1022,
             "ConnectorDamping")
public:
    KBE_EQUALITY(kbeC_ConnectorDamping)

    DD_ENUM(BehaviorEnm, LINEAR, NONLINEAR)
    DD_ENUM(CouplingEnm, UNCOUPLED, COUPLED, COUPLED_POSITION, COUPLED_MOTION)

    DD_FIELD(BehaviorEnm, behavior, BehaviorEnm::LINEAR)
    DD_FIELD(CouplingEnm, coupling, CouplingEnm::UNCOUPLED)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(bool, frequencyDependency, false)
    DD_FIELD(mdl_PropertyTable, table)
    /// On whose motion a coupled nonlinear behaviour depends.
    DD_FIELD(cls_xp1DArrayListInt, independentComponents)
    DD_FIELD(cls_xp1DArrayListInt, components)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, options)
    DD_END

    /// How many columns at the table's end are keys of its rows. A table of several rows that has
    /// fewer is not to be sorted: that ends the process.
    long long KeyColumns() const;
    /// Orders the rows by their keys.
    void SortDataTable();
};
