#include "nga_ConnectorSection.h"

#include <string>

#include "kbeC_ConnectorDamage.h"
#include "kbeC_ConnectorDamping.h"
#include "kbeC_ConnectorElasticity.h"
#include "kbeC_ConnectorFailure.h"
#include "kbeC_ConnectorFriction.h"
#include "kbeC_ConnectorLock.h"
#include "kbeC_ConnectorPlasticity.h"
#include "kbeC_ConnectorStop.h"

DD_DEFINE_ROOT(nga_ConnectorSection, kbeC_Module)

namespace {

/// Holds what behaviours refer to against the components that there are. Only what is in force is
/// asked: a field that another one switches off may hold anything.
class Availability {
public:
    Availability(mdl_RuleVisitor& v, cow_List<int> const& available)
        : m_visitor(v), m_available(available) {
        for (int i = 0; i < m_available.Size(); ++i)
            m_text += (i > 0 ? ", " : "") + std::to_string(m_available.ConstGet(i));
    }

    void Option(kbeC_ConnectorBehaviorOption const& option) {
        switch (option.DynTypeId()) {
            case kbeC_ConnectorElasticity::TypeId():
                return Law(static_cast<kbeC_ConnectorElasticity const&>(option));
            case kbeC_ConnectorDamping::TypeId():
                return Law(static_cast<kbeC_ConnectorDamping const&>(option));
            case kbeC_ConnectorStop::TypeId():
                return Components(static_cast<kbeC_ConnectorStop const&>(option).components);
            case kbeC_ConnectorLock::TypeId(): {
                auto const& lock = static_cast<kbeC_ConnectorLock const&>(option);
                Components(lock.components);
                return OneOrAll(lock.lockingComponent);
            }
            case kbeC_ConnectorFailure::TypeId(): {
                auto const& failure = static_cast<kbeC_ConnectorFailure const&>(option);
                Components(failure.components);
                return OneOrAll(failure.releaseComponent);
            }
            case kbeC_ConnectorFriction::TypeId():
                return Friction(static_cast<kbeC_ConnectorFriction const&>(option));
            case kbeC_ConnectorPlasticity::TypeId():
                return Plasticity(static_cast<kbeC_ConnectorPlasticity const&>(option));
            case kbeC_ConnectorDamage::TypeId():
                return Damage(static_cast<kbeC_ConnectorDamage const&>(option));
            default:
                return;
        }
    }

private:
    template <class T>
    void Law(T const& option) {
        Components(option.components);
        if (option.behavior == T::BehaviorEnm::NONLINEAR &&
            option.coupling != T::CouplingEnm::UNCOUPLED)
            Components(option.independentComponents);
    }
    void Friction(kbeC_ConnectorFriction const& option) {
        using Class = kbeC_ConnectorFriction;
        if (option.frictionModel == Class::FrictionModelEnm::PREDEFINED) return;
        if (option.slipStyle == Class::SlipStyleEnm::SPECIFY)
            Component(option.tangentDirection);
        else
            Potentials(option.connectorPotentials);
        if (option.useContactForceComponent) {
            if (option.contactForceStyle == Class::ContactForceStyleEnm::COMPONENT_NUMBER)
                Component(option.contactForceComponent);
            else
                Derived(option.derivedComponent.GetPtr(), 35);
        }
        if (option.componentType != Class::ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS)
            Components(option.independentComponents);
    }
    void Plasticity(kbeC_ConnectorPlasticity const& option) {
        if (option.coupling == kbeC_ConnectorPlasticity::CouplingEnm::UNCOUPLED)
            Components(option.components);
        else
            Potentials(option.connectorPotentials);
    }
    void Damage(kbeC_ConnectorDamage const& option) {
        if (option.coupling == kbeC_ConnectorDamage::CouplingEnm::UNCOUPLED) {
            Components(option.components);
        } else {
            Potentials(option.initiationPotentials);
            if (option.evolution) Potentials(option.evolutionPotentials);
        }
        if (option.evolution && option.useAffected) Components(option.affectedComponents);
    }
    void Potentials(cow_List<kbeC_ConnectorPotential> const& potentials) {
        using Style = kbeC_ConnectorPotential::ComponentStyleEnm;
        for (int i = 0; i < potentials.Size(); ++i) {
            kbeC_ConnectorPotential const& potential = potentials.ConstGet(i);
            if (potential.componentStyle == Style::COMPONENT_NUMBER)
                Component(potential.componentNumber);
            else
                Derived(potential.derivedComponent.GetPtr(), 37);
        }
    }
    void Derived(kbeC_DerivedComponent const* derived, int codeOfAbsence) {
        if (m_visitor.Rule(derived != nullptr, codeOfAbsence))
            m_visitor.Rule(derived->ValidComponents(m_available, true), 55);
    }
    void Components(cow_List<int> const& components) {
        for (int i = 0; i < components.Size(); ++i) Component(components.ConstGet(i));
    }
    void OneOrAll(int component) {
        if (component != kbeC_ConnectorLock::allComponents && component != kbeC_NotSetInt)
            Component(component);
    }
    void Component(int component) {
        m_visitor.ContentRule(m_available.IsMember(component), kbeC_unavailableComponents,
                              m_text.c_str());
    }

    mdl_RuleVisitor& m_visitor;
    cow_List<int> m_available;
    std::string m_text;
};

bool AreComponents(cow_List<int> const& components) {
    for (int i = 0; i < components.Size(); ++i)
        if (components.ConstGet(i) < 1 || components.ConstGet(i) > 6) return false;
    return true;
}

}  // namespace

void nga_ConnectorSection::Rules(mdl_RuleVisitor& v) const {
    v.Rule(stateVariables >= 0, 27);
    v.Rule(AreComponents(availableComponents), 4);
    v.AskEach(options);

    cow_List<int> available(availableComponents);
    if (available.Size() == 0)
        for (int component = 1; component <= 6; ++component) available.Append(component);
    Availability availability(v, available);
    for (int i = 0; i < options.Size(); ++i)
        if (kbeC_ConnectorBehaviorOption const* option = options.ConstGet(i).GetPtr())
            availability.Option(*option);
}
