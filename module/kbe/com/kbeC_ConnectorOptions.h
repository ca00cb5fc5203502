#pragma once

#include "kbeC_assert.h"
#include "mdl_Describe.h"

/// How the analysis uses the table of a behaviour: regularization, rate and extrapolation. An
/// optional part of behaviours and of the terms of derived components; its own rules are asked by
/// who owns it and wants them, not by the behaviour.
class kbeC_ConnectorOptions : public mem_AllocationOperators {
    DD_ROOT(kbeC_ConnectorOptions, 0x2A8003E, 1026, "ConnectorOptions")
public:
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kbeC_ConnectorOptions* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    DD_ENUM(InterpolationEnm, LINEAR, LOGARITHMIC)
    DD_ENUM(ExtrapolationEnm, CONSTANT, LINEAR)

    /// Takes the regularization settings of the behaviour as a whole.
    DD_FIELD(bool, useBehRegSettings, true)
    DD_FIELD(bool, regularize, true)
    DD_FIELD(bool, defaultTolerance, true)
    DD_FIELD(double, regularization, 0.03)
    DD_FIELD(bool, defaultRateFactor, true)
    DD_FIELD(double, rateFactor, 0.9)
    DD_FIELD(InterpolationEnm, interpolation, InterpolationEnm::LINEAR)
    /// Takes the extrapolation settings of the behaviour as a whole.
    DD_FIELD(bool, useBehExtSettings, true)
    DD_FIELD(ExtrapolationEnm, extrapolation, ExtrapolationEnm::CONSTANT)
    DD_END

    /// Whether nothing that concerns the rate differs from its default: all that most behaviours
    /// accept.
    bool HasDefaultRate() const;

    /// All fields equal; the identity takes no part.
    bool operator==(kbeC_ConnectorOptions const& other) const;
    bool operator!=(kbeC_ConnectorOptions const& other) const { return !(*this == other); }
};
