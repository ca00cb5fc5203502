#pragma once

#include "cow_String.h"
#include "kmaC_AcousticMedium.h"
#include "kmaC_BrittleCracking.h"
#include "kmaC_CapPlasticity.h"
#include "kmaC_CastIronPlasticity.h"
#include "kmaC_ClayPlasticity.h"
#include "kmaC_Concrete.h"
#include "kmaC_ConcreteDamagedPlasticity.h"
#include "kmaC_Conductivity.h"
#include "kmaC_Creep.h"
#include "kmaC_DamageInitiation.h"
#include "kmaC_Damping.h"
#include "kmaC_DeformationPlasticity.h"
#include "kmaC_Density.h"
#include "kmaC_Depvar.h"
#include "kmaC_Dielectric.h"
#include "kmaC_Diffusivity.h"
#include "kmaC_DruckerPrager.h"
#include "kmaC_Elastic.h"
#include "kmaC_ElectricalConductivity.h"
#include "kmaC_Eos.h"
#include "kmaC_Expansion.h"
#include "kmaC_FluidLeakoff.h"
#include "kmaC_Foam.h"
#include "kmaC_GapFlow.h"
#include "kmaC_Gel.h"
#include "kmaC_HeatGeneration.h"
#include "kmaC_Hyperelastic.h"
#include "kmaC_Hyperfoam.h"
#include "kmaC_Hypoelastic.h"
#include "kmaC_InelasticHeatFraction.h"
#include "kmaC_JouleHeatFraction.h"
#include "kmaC_LatentHeat.h"
#include "kmaC_MembraneElastic.h"
#include "kmaC_MohrCoulomb.h"
#include "kmaC_MoistureSwelling.h"
#include "kmaC_MullinsEffect.h"
#include "kmaC_Permeability.h"
#include "kmaC_Piezoelectric.h"
#include "kmaC_Plastic.h"
#include "kmaC_PoreFluidExpansion.h"
#include "kmaC_PorousBulkModuli.h"
#include "kmaC_PorousElastic.h"
#include "kmaC_PorousMetalPlasticity.h"
#include "kmaC_Regularization.h"
#include "kmaC_Solubility.h"
#include "kmaC_Sorption.h"
#include "kmaC_SpecificHeat.h"
#include "kmaC_Swelling.h"
#include "kmaC_ThicknessBehavior.h"
#include "kmaC_TransShearElastic.h"
#include "kmaC_UserDefinedField.h"
#include "kmaC_UserMaterial.h"
#include "kmaC_UserOutputVariables.h"
#include "kmaC_Viscoelastic.h"
#include "kmaC_Viscous.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"
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
    DD_OPTION(kmaC_AcousticMedium, acousticMedium)
    DD_OPTION(kmaC_BrittleCracking, brittleCracking)
    DD_OPTION(kmaC_CapPlasticity, capPlasticity)
    DD_OPTION(kmaC_CastIronPlasticity, castIronPlasticity)
    DD_OPTION(kmaC_ClayPlasticity, clayPlasticity)
    DD_OPTION(kmaC_Concrete, concrete)
    DD_OPTION(kmaC_ConcreteDamagedPlasticity, concreteDamagedPlasticity)
    DD_OPTION(kmaC_Conductivity, conductivity)
    DD_OPTION(kmaC_Creep, creep)
    DD_OPTION_AS(kmaC_Foam, foam, "crushableFoam")
    DD_OPTION(kmaC_DamageInitiation, ductileDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, fldDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, flsdDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, johnsonCookDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, maxeDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, maxsDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, mkDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, msfldDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, quadeDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, quadsDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, shearDamageInitiation)
    DD_OPTION(kmaC_DamageInitiation, hashinDamageInitiation)
    DD_OPTION(kmaC_Damping, damping)
    DD_OPTION(kmaC_DeformationPlasticity, deformationPlasticity)
    DD_OPTION(kmaC_Density, density)
    DD_OPTION(kmaC_Depvar, depvar)
    DD_OPTION(kmaC_Dielectric, dielectric)
    DD_OPTION(kmaC_Diffusivity, diffusivity)
    DD_OPTION(kmaC_DruckerPrager, druckerPrager)
    DD_OPTION(kmaC_Elastic, elastic)
    DD_OPTION(kmaC_ElectricalConductivity, electricalConductivity)
    DD_OPTION(kmaC_Eos, eos)
    DD_OPTION(kmaC_Expansion, expansion)
    DD_OPTION(kmaC_FluidLeakoff, fluidLeakoff)
    DD_OPTION(kmaC_GapFlow, gapFlow)
    DD_OPTION_AS(kmaC_ThicknessBehavior, thicknessBehavior, "gasketThicknessBehavior")
    DD_OPTION_AS(kmaC_TransShearElastic, transShearElastic, "gasketTransverseShearElastic")
    DD_OPTION_AS(kmaC_MembraneElastic, membraneElastic, "gasketMembraneElastic")
    DD_OPTION(kmaC_Gel, gel)
    DD_OPTION(kmaC_HeatGeneration, heatGeneration)
    DD_OPTION(kmaC_Hyperelastic, hyperelastic)
    DD_OPTION(kmaC_Hyperfoam, hyperfoam)
    DD_OPTION(kmaC_Hypoelastic, hypoelastic)
    DD_OPTION(kmaC_InelasticHeatFraction, inelasticHeatFraction)
    DD_OPTION(kmaC_JouleHeatFraction, jouleHeatFraction)
    DD_OPTION(kmaC_LatentHeat, latentHeat)
    DD_OPTION_AS(kmaC_MohrCoulomb, mohrCoulomb, "mohrCoulombPlasticity")
    DD_OPTION(kmaC_MoistureSwelling, moistureSwelling)
    DD_OPTION(kmaC_MullinsEffect, mullinsEffect)
    DD_OPTION(kmaC_Permeability, permeability)
    DD_OPTION(kmaC_Piezoelectric, piezoelectric)
    DD_OPTION(kmaC_Plastic, plastic)
    DD_OPTION(kmaC_PoreFluidExpansion, poreFluidExpansion)
    DD_OPTION(kmaC_PorousBulkModuli, porousBulkModuli)
    DD_OPTION(kmaC_PorousElastic, porousElastic)
    DD_OPTION(kmaC_PorousMetalPlasticity, porousMetalPlasticity)
    DD_OPTION(kmaC_Regularization, regularization)
    DD_OPTION(kmaC_Solubility, solubility)
    DD_OPTION(kmaC_Sorption, sorption)
    DD_OPTION(kmaC_SpecificHeat, specificHeat)
    DD_OPTION(kmaC_Swelling, swelling)
    DD_OPTION(kmaC_UserDefinedField, userDefinedField)
    DD_OPTION(kmaC_UserMaterial, userMaterial)
    DD_OPTION(kmaC_UserOutputVariables, userOutputVariables)
    DD_OPTION(kmaC_Viscoelastic, viscoelastic)
    DD_OPTION(kmaC_Viscous, viscous)
    DD_FIELD(cow_String, description)
    DD_FIELD(cow_String, materialIdentifier)
    // clang-format on
    DD_END
};

template <>
struct cow_Destroyer<kmaC_Material> : mdl_DynamicDestroyer<kmaC_Material> {};

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
