#pragma once

#include "cow_String.h"
#include "kmaC_Density.h"
#include "kmaC_Elastic.h"
#include "kmaC_Expansion.h"
#include "kmaC_SpecificHeat.h"
#include "mdl_Describe.h"
#include "mdl_ExtensionWrapper.h"
#include "mdl_MapString2ObjCow.h"

/// A material: a named bag of up to 66 independent, optional behaviours, each an option object in a
/// member of its own. The name is the key in the repository, not a member. A copy shares every
/// option. No rule ties two options together.
class kmaC_Material : public mem_AllocationOperators {
    DD_ROOT(kmaC_Material, 0x2380001, 1106, "Material")
public:
    /// Asks 51 of the options, in an order of its own; the first failed rule raises.
    virtual void AssertValid() const;
    /// A new copy, which the caller owns.
    virtual kmaC_Material* Copy() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    static constexpr omn_FixedString nameCmd() { return omn_FixedString("name"); }
    static constexpr omn_FixedString materialRepositoryCmd() {
        return omn_FixedString("materials");
    }

    // clang-format off
    DD_PENDING(0x2380004, acousticMedium)
    DD_PENDING(0x2380007, brittleCracking)
    DD_PENDING(0x238000C, capPlasticity)
    DD_PENDING(0x2380074, castIronPlasticity)
    DD_PENDING(0x238000E, clayPlasticity)
    DD_PENDING(0x2380010, concrete)
    DD_PENDING(0x2380077, concreteDamagedPlasticity)
    DD_PENDING(0x2380011, conductivity)
    DD_PENDING(0x2380012, creep)
    DD_PENDING_AS(0x238002A, foam, "crushableFoam")
    DD_PENDING(0x2380085, ductileDamageInitiation)
    DD_PENDING(0x2380085, fldDamageInitiation)
    DD_PENDING(0x2380085, flsdDamageInitiation)
    DD_PENDING(0x2380085, johnsonCookDamageInitiation)
    DD_PENDING(0x2380085, maxeDamageInitiation)
    DD_PENDING(0x2380085, maxsDamageInitiation)
    DD_PENDING(0x2380085, mkDamageInitiation)
    DD_PENDING(0x2380085, msfldDamageInitiation)
    DD_PENDING(0x2380085, quadeDamageInitiation)
    DD_PENDING(0x2380085, quadsDamageInitiation)
    DD_PENDING(0x2380085, shearDamageInitiation)
    DD_PENDING(0x2380085, hashinDamageInitiation)
    DD_PENDING(0x2380015, damping)
    DD_PENDING(0x2380016, deformationPlasticity)
    DD_OPTION(kmaC_Density, density)
    DD_PENDING(0x2380018, depvar)
    DD_PENDING(0x2380019, dielectric)
    DD_PENDING(0x238001A, diffusivity)
    DD_PENDING(0x238001B, druckerPrager)
    DD_OPTION(kmaC_Elastic, elastic)
    DD_PENDING(0x238001F, electricalConductivity)
    DD_PENDING(0x2380020, eos)
    DD_OPTION(kmaC_Expansion, expansion)
    DD_PENDING(0x2380083, fluidLeakoff)
    DD_PENDING(0x2380084, gapFlow)
    DD_PENDING_AS(0x238005D, thicknessBehavior, "gasketThicknessBehavior")
    DD_PENDING_AS(0x238005C, transShearElastic, "gasketTransverseShearElastic")
    DD_PENDING_AS(0x238005B, membraneElastic, "gasketMembraneElastic")
    DD_PENDING(0x238002C, gel)
    DD_PENDING(0x238002D, heatGeneration)
    DD_PENDING(0x238002E, hyperelastic)
    DD_PENDING(0x238002F, hyperfoam)
    DD_PENDING(0x2380030, hypoelastic)
    DD_PENDING(0x2380031, inelasticHeatFraction)
    DD_PENDING(0x2380034, jouleHeatFraction)
    DD_PENDING(0x2380036, latentHeat)
    DD_PENDING_AS(0x2380075, mohrCoulomb, "mohrCoulombPlasticity")
    DD_PENDING(0x2380037, moistureSwelling)
    DD_PENDING(0x2380082, mullinsEffect)
    DD_PENDING(0x2380039, permeability)
    DD_PENDING(0x238003A, piezoelectric)
    DD_PENDING(0x238003C, plastic)
    DD_PENDING(0x238003D, poreFluidExpansion)
    DD_PENDING(0x238003E, porousBulkModuli)
    DD_PENDING(0x238003F, porousElastic)
    DD_PENDING(0x2380041, porousMetalPlasticity)
    DD_PENDING(0x2380062, regularization)
    DD_PENDING(0x2380049, solubility)
    DD_PENDING(0x238004A, sorption)
    DD_OPTION(kmaC_SpecificHeat, specificHeat)
    DD_PENDING(0x238004C, swelling)
    DD_PENDING(0x2380052, userDefinedField)
    DD_PENDING(0x2380053, userMaterial)
    DD_PENDING(0x2380054, userOutputVariables)
    DD_PENDING(0x2380055, viscoelastic)
    DD_PENDING(0x2380070, viscous)
    DD_FIELD(cow_String, description)
    DD_FIELD(cow_String, materialIdentifier)
    // clang-format on
    DD_END
};

/// The repository of materials, and the wrapper that makes it an extension of the model.
using kmaC_MaterialContainer = mdl_MapString2ObjCow<kmaC_Material>;
using kmaC_MCWrapper = mdl_ExtensionWrapper<kmaC_MaterialContainer>;

template <>
struct mdl_RepositoryTraits<kmaC_MaterialContainer> {
    static constexpr unsigned typeId = 0x238005A;
    static constexpr char const* name = "kmaC_MaterialContainer";
    static constexpr int version = 800;
};
template <>
struct mdl_RepositoryTraits<kmaC_MCWrapper> {
    static constexpr unsigned typeId = 0x238007D;
    static constexpr char const* name = "kmaC_MCWrapper";
    static constexpr int version = 401;
};
