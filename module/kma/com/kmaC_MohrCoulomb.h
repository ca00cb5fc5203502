#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_MohrCoulombHardening.h"

/// Plasticity of soils and rocks by friction angle and dilation angle; cohesion is in the
/// hardening.
class kmaC_MohrCoulomb : public kmaC_MaterialOption {
    DD_CLASS(kmaC_MohrCoulomb, kmaC_MaterialOption, 0x2380075, 404, "MohrCoulombPlasticity")
public:
    /// Shape of the flow potential across the axis, above 0.5 to 1; from the friction angle when
    /// not set.
    DD_FIELD(double, deviatoricEccentricity, kmaC_NotSet)
    /// How fast the flow potential nears its asymptote.
    DD_FIELD(double, meridionalEccentricity, 0.1)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    DD_OPTION(kmaC_MohrCoulombHardening, mohrCoulombHardening)
    DD_END
};
