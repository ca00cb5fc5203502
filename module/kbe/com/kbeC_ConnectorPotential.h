#pragma once

#include "kbeC_DerivedComponent.h"

/// One term of a force potential: a component by its number, or a derived one.
class kbeC_ConnectorPotential final : public mem_AllocationOperators {
    DD_ROOT(kbeC_ConnectorPotential, 0x2A8001F, 836, "ConnectorPotential")
public:
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kbeC_ConnectorPotential* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_ENUM(ComponentStyleEnm, COMPONENT_NUMBER, DERIVED_COMPONENT)
    DD_ENUM(SignEnm, POSITIVE, NEGATIVE)
    DD_ENUM(HFunctionEnm, ABS, MACAULEY, IDENTITY)

    DD_FIELD(ComponentStyleEnm, componentStyle, ComponentStyleEnm::COMPONENT_NUMBER)
    DD_FIELD(int, componentNumber, 0)
    DD_FIELD(SignEnm, sign, SignEnm::POSITIVE)
    DD_FIELD(double, scaleFactor, 1.0)
    DD_FIELD(double, positiveExponent, 2.0)
    DD_FIELD(double, shiftFactor, 0.0)
    DD_FIELD(HFunctionEnm, hFunction, HFunctionEnm::ABS)
    DD_VIRTUAL_OPTION(kbeC_DerivedComponent, derivedComponent)
    DD_END

    /// Of the number and the derived component, the one counts that the style selects.
    bool operator==(kbeC_ConnectorPotential const& other) const;
    bool operator!=(kbeC_ConnectorPotential const& other) const { return !(*this == other); }
};
