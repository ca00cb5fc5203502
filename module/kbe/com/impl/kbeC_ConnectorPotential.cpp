#include "kbeC_ConnectorPotential.h"

#include "kbeC_CommonRules.h"

DD_DEFINE_ROOT(kbeC_ConnectorPotential, kbeC_Module)

void kbeC_ConnectorPotential::Rules(mdl_RuleVisitor& v) const {
    if (componentStyle == ComponentStyleEnm::COMPONENT_NUMBER)
        v.Rule(kbe::IsComponent(componentNumber), 36);
    else
        v.Ask(derivedComponent);
    v.Rule(!(positiveExponent < 0.0), 40);
}

bool kbeC_ConnectorPotential::operator==(kbeC_ConnectorPotential const& other) const {
    if (hFunction != other.hFunction || sign != other.sign ||
        componentStyle != other.componentStyle || scaleFactor != other.scaleFactor ||
        positiveExponent != other.positiveExponent || shiftFactor != other.shiftFactor)
        return false;
    switch (componentStyle) {
        case ComponentStyleEnm::COMPONENT_NUMBER:
            return componentNumber == other.componentNumber;
        case ComponentStyleEnm::DERIVED_COMPONENT:
            return kbe::EqualIfPresent(derivedComponent, other.derivedComponent);
    }
    return true;
}
