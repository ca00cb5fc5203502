#pragma once

#include "kbeC_ConnectorBehaviorOption.h"
#include "kbeC_ConnectorPotential.h"
#include "kbeC_TangentialBehavior.h"

/// Friction in a connector: by a predefined law, or by a model of the user's own, which says the
/// direction of slip, the contact force and the force potential. A predefined law leaves all but
/// the stick stiffness unchecked.
class kbeC_ConnectorFriction : public kbeC_ConnectorBehaviorOption {
    DD_CLASS(kbeC_ConnectorFriction, kbeC_ConnectorBehaviorOption, 0x2A8001C, 1022,
             "ConnectorFriction")
public:
    KBE_EQUALITY(kbeC_ConnectorFriction)

    DD_ENUM(FrictionModelEnm, PREDEFINED, USER_CUSTOMIZED)
    DD_ENUM(SlipStyleEnm, SPECIFY, COMPUTE)
    DD_ENUM(ComponentTypeEnm, POSITION, MOTION, NO_INDEPENDENT_COMPONENTS)
    DD_ENUM(ContactForceStyleEnm, COMPONENT_NUMBER, DERIVED_COMPONENT)
    DD_ENUM(ForcePotentialOperatorEnm, SUM, MAXIMUM)

    DD_FIELD(FrictionModelEnm, frictionModel, FrictionModelEnm::PREDEFINED)
    DD_FIELD(SlipStyleEnm, slipStyle, SlipStyleEnm::SPECIFY)
    DD_FIELD(int, tangentDirection, kbeC_NotSetInt)
    DD_FIELD(double, stickStiffness, kbeC_NotSet)
    DD_FIELD(ComponentTypeEnm, componentType, ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS)
    DD_FIELD(bool, slipDependency, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(bool, useContactForceComponent, false)
    DD_FIELD(ContactForceStyleEnm, contactForceStyle, ContactForceStyleEnm::COMPONENT_NUMBER)
    DD_FIELD(int, contactForceComponent, 0)
    DD_FIELD(ForcePotentialOperatorEnm, forcePotentialOperator, ForcePotentialOperatorEnm::SUM)
    DD_FIELD(double, forcePotentialExponent, 2.0)
    DD_FIELD(cls_xo1DArrayList<kbeC_ConnectorPotential>, connectorPotentials)
    DD_FIELD(mdl_PropertyTable, table)
    DD_VIRTUAL_OPTION(kbeC_TangentialBehavior, tangentialBehavior)
    DD_FIELD(cls_xp1DArrayListInt, independentComponents)
    DD_VIRTUAL_OPTION(kbeC_DerivedComponent, derivedComponent)
    DD_VIRTUAL_OPTION(kbeC_ConnectorOptions, options)
    DD_END

    /// How many columns at the table's end are keys of its rows. A table of several rows that has
    /// fewer is not to be sorted: that ends the process.
    long long KeyColumns() const;
    /// Orders the rows by their keys.
    void SortDataTable();
};
