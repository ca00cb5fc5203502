#pragma once

#include "kbeC_NotSet.h"
#include "kbeC_assert.h"
#include "mdl_Describe.h"

/// The friction law of a predefined friction model. Its table is a bare array: the friction
/// coefficients come first, behind them whatever they depend on.
class kbeC_TangentialBehavior : public mem_AllocationOperators {
    DD_ROOT(kbeC_TangentialBehavior, 0x2A8000D, 453, "TangentialBehavior")
public:
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kbeC_TangentialBehavior* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_ENUM(FormulationEnm, PENALTY, EXPONENTIAL_DECAY)
    DD_ENUM(ExponentialDecayDefinitionEnm, COEFFICIENTS, TEST_DATA)
    DD_ENUM(MaximumElasticSlipEnm, FRACTION, ABSOLUTE_DISTANCE)

    DD_FIELD(FormulationEnm, formulation, FormulationEnm::PENALTY)
    DD_FIELD(bool, slipRateDependency, false)
    DD_FIELD(bool, pressureDependency, false)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(ExponentialDecayDefinitionEnm, exponentialDecayDefinition,
             ExponentialDecayDefinitionEnm::COEFFICIENTS)
    DD_FIELD(double, shearStressLimit, kbeC_NotSet)
    DD_FIELD(MaximumElasticSlipEnm, maximumElasticSlip, MaximumElasticSlipEnm::FRACTION)
    DD_FIELD(double, fraction, 0.0001)
    DD_FIELD(double, absoluteDistance, kbeC_NotSet)
    DD_FIELD(cls_xp2DArrayDouble, table)
    DD_END

    /// All fields equal, the table cell by cell; a NaN equals nothing. Identities take no part.
    bool operator==(kbeC_TangentialBehavior const& other) const;
    bool operator!=(kbeC_TangentialBehavior const& other) const { return !(*this == other); }
};
