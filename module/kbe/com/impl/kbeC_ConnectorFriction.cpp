#include "kbeC_ConnectorFriction.h"

#include "kbeC_CommonRules.h"

DD_DEFINE(kbeC_ConnectorFriction, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorFriction)

void kbeC_ConnectorFriction::Rules(mdl_RuleVisitor& v) const {
    v.Rule(stickStiffness > 0.0, 6);
    if (frictionModel == FrictionModelEnm::PREDEFINED) return;

    v.Rule(slipStyle == SlipStyleEnm::SPECIFY || slipStyle == SlipStyleEnm::COMPUTE, 38);
    if (slipStyle == SlipStyleEnm::SPECIFY) v.Rule(kbe::IsComponent(tangentDirection), 19);
    if (slipStyle == SlipStyleEnm::COMPUTE &&
        forcePotentialOperator == ForcePotentialOperatorEnm::SUM)
        v.Rule(!(forcePotentialExponent <= 0.0), 41);

    if (useContactForceComponent) {
        bool const byNumber = contactForceStyle == ContactForceStyleEnm::COMPONENT_NUMBER;
        bool const byDerived = contactForceStyle == ContactForceStyleEnm::DERIVED_COMPONENT;
        v.Rule(byNumber || byDerived, 39);
        if (byNumber) v.Rule(kbe::IsComponent(contactForceComponent), 34);
        if (byDerived) v.Ask(derivedComponent);
    } else {
        v.Rule(kbe::HasValueInFirstColumn(table), 42);
    }

    v.Rule(componentType == ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS ||
               independentComponents.Size() > 0,
           18);
    v.Rule(kbe::AreComponents(independentComponents), 17);
    kbe::RequireDefaultRate(v, options, "Friction; internal contact forces");
}

bool kbeC_ConnectorFriction::operator==(kbeC_ConnectorFriction const& other) const {
    return frictionModel == other.frictionModel && slipStyle == other.slipStyle &&
           tangentDirection == other.tangentDirection && stickStiffness == other.stickStiffness &&
           componentType == other.componentType && slipDependency == other.slipDependency &&
           dependencies == other.dependencies &&
           temperatureDependency == other.temperatureDependency &&
           useContactForceComponent == other.useContactForceComponent &&
           contactForceStyle == other.contactForceStyle &&
           contactForceComponent == other.contactForceComponent &&
           forcePotentialOperator == other.forcePotentialOperator &&
           forcePotentialExponent == other.forcePotentialExponent &&
           connectorPotentials.IsEqual(other.connectorPotentials) && table == other.table &&
           independentComponents.IsEqual(other.independentComponents) &&
           kbe::EqualIfPresent(tangentialBehavior, other.tangentialBehavior) &&
           kbe::EqualIfPresent(derivedComponent, other.derivedComponent) &&
           kbe::EqualIfPresent(options, other.options);
}

long long kbeC_ConnectorFriction::KeyColumns() const {
    bool const independent = componentType != ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS;
    return kbe::Sum(dependencies, temperatureDependency, slipDependency,
                    independent ? independentComponents.Size() : 0);
}

void kbeC_ConnectorFriction::SortDataTable() { kbe::Sort(table, KeyColumns()); }
