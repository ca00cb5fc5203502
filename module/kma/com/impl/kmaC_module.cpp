#include "kmaC_module.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_Model.h"
#include "kmaC_AcousticBulkModulus.h"
#include "kmaC_AcousticMedium.h"
#include "kmaC_AcousticVolumetricDrag.h"
#include "kmaC_AnnealTemperature.h"
#include "kmaC_ArchEntry.h"
#include "kmaC_BiaxialTestData.h"
#include "kmaC_BrittleCracking.h"
#include "kmaC_BrittleFailure.h"
#include "kmaC_BrittleShear.h"
#include "kmaC_BulkFailure.h"
#include "kmaC_CapCreepCohesion.h"
#include "kmaC_CapCreepConsolidation.h"
#include "kmaC_CapHardening.h"
#include "kmaC_CapPlasticity.h"
#include "kmaC_CastIronCompHard.h"
#include "kmaC_CastIronPlasticity.h"
#include "kmaC_CastIronTensHard.h"
#include "kmaC_ClayHardening.h"
#include "kmaC_ClayPlasticity.h"
#include "kmaC_CombinedTestData.h"
#include "kmaC_Concrete.h"
#include "kmaC_ConcreteCompressionDamage.h"
#include "kmaC_ConcreteCompressionHardening.h"
#include "kmaC_ConcreteDamagedPlasticity.h"
#include "kmaC_ConcreteTensionDamage.h"
#include "kmaC_ConcreteTensionStiffening.h"
#include "kmaC_Conductivity.h"
#include "kmaC_ContactArea.h"
#include "kmaC_Creep.h"
#include "kmaC_CycledPlastic.h"
#include "kmaC_CyclicHardening.h"
#include "kmaC_DamageEvolution.h"
#include "kmaC_DamageInitiation.h"
#include "kmaC_DamageStabilization.h"
#include "kmaC_Damping.h"
#include "kmaC_DeformationPlasticity.h"
#include "kmaC_Density.h"
#include "kmaC_Depvar.h"
#include "kmaC_DetonationPoint.h"
#include "kmaC_Dielectric.h"
#include "kmaC_Diffusivity.h"
#include "kmaC_DruckerPrager.h"
#include "kmaC_DruckerPragerCreep.h"
#include "kmaC_DruckerPragerHardening.h"
#include "kmaC_Elastic.h"
#include "kmaC_ElectricalConductivity.h"
#include "kmaC_Eos.h"
#include "kmaC_EosCompaction.h"
#include "kmaC_EosShear.h"
#include "kmaC_Expansion.h"
#include "kmaC_FailStrain.h"
#include "kmaC_FailStress.h"
#include "kmaC_FailureRatios.h"
#include "kmaC_FirstDirection.h"
#include "kmaC_FluidBulkModulus.h"
#include "kmaC_FluidDensity.h"
#include "kmaC_FluidExpansion.h"
#include "kmaC_FluidLeakoff.h"
#include "kmaC_Foam.h"
#include "kmaC_FoamHardening.h"
#include "kmaC_GapFlow.h"
#include "kmaC_Gel.h"
#include "kmaC_HeatGeneration.h"
#include "kmaC_Hyperelastic.h"
#include "kmaC_Hyperfoam.h"
#include "kmaC_Hypoelastic.h"
#include "kmaC_Hysteresis.h"
#include "kmaC_InelasticHeatFraction.h"
#include "kmaC_JointShearRetention.h"
#include "kmaC_JointedMaterial.h"
#include "kmaC_JouleHeatFraction.h"
#include "kmaC_Kappa.h"
#include "kmaC_LatentHeat.h"
#include "kmaC_Material.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_MaterialTable.h"
#include "kmaC_MembraneElastic.h"
#include "kmaC_MohrCoulomb.h"
#include "kmaC_MohrCoulombHardening.h"
#include "kmaC_MoistureSwelling.h"
#include "kmaC_MullinsEffect.h"
#include "kmaC_Ornl.h"
#include "kmaC_Permeability.h"
#include "kmaC_Piezoelectric.h"
#include "kmaC_PlanarTestData.h"
#include "kmaC_Plastic.h"
#include "kmaC_PoreFluidExpansion.h"
#include "kmaC_PorousBulkModuli.h"
#include "kmaC_PorousElastic.h"
#include "kmaC_PorousFailureCriteria.h"
#include "kmaC_PorousMetalPlasticity.h"
#include "kmaC_Potential.h"
#include "kmaC_PressureEffect.h"
#include "kmaC_RateDependent.h"
#include "kmaC_Ratios.h"
#include "kmaC_Regularization.h"
#include "kmaC_SaturationDependence.h"
#include "kmaC_SecondDirection.h"
#include "kmaC_ShearRetention.h"
#include "kmaC_ShearTestData.h"
#include "kmaC_SimpleShearTestData.h"
#include "kmaC_Solubility.h"
#include "kmaC_SoretEffect.h"
#include "kmaC_Sorption.h"
#include "kmaC_SpecificHeat.h"
#include "kmaC_Swelling.h"
#include "kmaC_TensionStiffening.h"
#include "kmaC_ThicknessBehavior.h"
#include "kmaC_ThirdDirection.h"
#include "kmaC_TransShearElastic.h"
#include "kmaC_TriaxialTestData.h"
#include "kmaC_Trs.h"
#include "kmaC_UniaxialTestData.h"
#include "kmaC_Unimplemented.h"
#include "kmaC_UserDefinedField.h"
#include "kmaC_UserMaterial.h"
#include "kmaC_UserOutputVariables.h"
#include "kmaC_VelocityDependence.h"
#include "kmaC_Viscoelastic.h"
#include "kmaC_Viscous.h"
#include "kmaC_VoidNucleation.h"
#include "kmaC_VolumetricTestData.h"
#include "kmaC_oldClasses.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kmaGuard;

struct Registration {
    cls_MetadataRegistrar::Callback metadata;
    unsigned mask;
};

// clang-format off
constexpr Registration kmaClasses[] = {
    {kmaC_AnnealTemperature::InitializeMetadata, cls_DomainsAll},
    {kmaC_AcousticMedium::InitializeMetadata, cls_DomainsAll},
    {kmaC_BiaxialTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_CapCreepCohesion::InitializeMetadata, cls_DomainsAll},
    {kmaC_CapCreepConsolidation::InitializeMetadata, cls_DomainsAll},
    {kmaC_CapHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_CapPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_CastIronCompHard::InitializeMetadata, cls_DomainsAll},
    {kmaC_CastIronPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_CastIronTensHard::InitializeMetadata, cls_DomainsAll},
    {kmaC_ClayHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_ClayPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_CombinedTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_Concrete::InitializeMetadata, cls_DomainsAll},
    {kmaC_ConcreteCompressionDamage::InitializeMetadata, cls_DomainsAll},
    {kmaC_ConcreteCompressionHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_ConcreteDamagedPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_ConcreteTensionDamage::InitializeMetadata, cls_DomainsAll},
    {kmaC_ConcreteTensionStiffening::InitializeMetadata, cls_DomainsAll},
    {kmaC_Conductivity::InitializeMetadata, cls_DomainsAll},
    {kmaC_ContactArea::InitializeMetadata, cls_DomainsAll},
    {kmaC_Creep::InitializeMetadata, cls_DomainsAll},
    {kmaC_CycledPlastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_CyclicHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_Damping::InitializeMetadata, cls_DomainsAll},
    {kmaC_DeformationPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_Density::InitializeMetadata, cls_DomainsAll},
    {kmaC_Depvar::InitializeMetadata, cls_DomainsAll},
    {kmaC_DetonationPoint::InitializeMetadata, cls_DomainsAll},
    {kmaC_Dielectric::InitializeMetadata, cls_DomainsAll},
    {kmaC_Diffusivity::InitializeMetadata, cls_DomainsAll},
    {kmaC_DruckerPrager::InitializeMetadata, cls_DomainsAll},
    {kmaC_DruckerPragerHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_DruckerPragerCreep::InitializeMetadata, cls_DomainsAll},
    {kmaC_Elastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_ElectricalConductivity::InitializeMetadata, cls_DomainsAll},
    {kmaC_Eos::InitializeMetadata, cls_DomainsAll},
    {kmaC_EosCompaction::InitializeMetadata, cls_DomainsAll},
    {kmaC_EosShear::InitializeMetadata, cls_DomainsAll},
    {kmaC_Expansion::InitializeMetadata, cls_DomainsAll},
    {kmaC_FailStrain::InitializeMetadata, cls_DomainsAll},
    {kmaC_FailStress::InitializeMetadata, cls_DomainsAll},
    {kmaC_FailureRatios::InitializeMetadata, cls_DomainsAll},
    {kmaC_FluidLeakoff::InitializeMetadata, cls_DomainsAll},
    {kmaC_Foam::InitializeMetadata, cls_DomainsAll},
    {kmaC_FoamHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_GapFlow::InitializeMetadata, cls_DomainsAll},
    {kmaC_Gel::InitializeMetadata, cls_DomainsAll},
    {kmaC_HeatGeneration::InitializeMetadata, cls_DomainsAll},
    {kmaC_Hyperelastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_Hyperfoam::InitializeMetadata, cls_DomainsAll},
    {kmaC_Hypoelastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_Hysteresis::InitializeMetadata, cls_DomainsAll},
    {kmaC_InelasticHeatFraction::InitializeMetadata, cls_DomainsAll},
    {kmaC_JouleHeatFraction::InitializeMetadata, cls_DomainsAll},
    {kmaC_LatentHeat::InitializeMetadata, cls_DomainsAll},
    {kmaC_Material::InitializeMetadata, cls_DomainsAll},
    {kmaC_MaterialOption::InitializeMetadata, cls_DomainsAll},
    {kmaC_MaterialTable::InitializeMetadata, cls_DomainsAll},
    {kmaC_MembraneElastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_MohrCoulomb::InitializeMetadata, cls_DomainsAll},
    {kmaC_MohrCoulombHardening::InitializeMetadata, cls_DomainsAll},
    {kmaC_MoistureSwelling::InitializeMetadata, cls_DomainsAll},
    {kmaC_MullinsEffect::InitializeMetadata, cls_DomainsAll},
    {kmaC_Ornl::InitializeMetadata, cls_DomainsAll},
    {kmaC_Permeability::InitializeMetadata, cls_DomainsAll},
    {kmaC_Piezoelectric::InitializeMetadata, cls_DomainsAll},
    {kmaC_PlanarTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_Plastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_PoreFluidExpansion::InitializeMetadata, cls_DomainsAll},
    {kmaC_PorousBulkModuli::InitializeMetadata, cls_DomainsAll},
    {kmaC_PorousElastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_PorousFailureCriteria::InitializeMetadata, cls_DomainsAll},
    {kmaC_PorousMetalPlasticity::InitializeMetadata, cls_DomainsAll},
    {kmaC_Potential::InitializeMetadata, cls_DomainsAll},
    {kmaC_PressureEffect::InitializeMetadata, cls_DomainsAll},
    {kmaC_RateDependent::InitializeMetadata, cls_DomainsAll},
    {kmaC_Ratios::InitializeMetadata, cls_DomainsAll},
    {kmaC_Regularization::InitializeMetadata, cls_DomainsAll},
    {kmaC_SaturationDependence::InitializeMetadata, cls_DomainsAll},
    {kmaC_ShearRetention::InitializeMetadata, cls_DomainsAll},
    {kmaC_ShearTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_SimpleShearTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_Solubility::InitializeMetadata, cls_DomainsAll},
    {kmaC_SoretEffect::InitializeMetadata, cls_DomainsAll},
    {kmaC_Sorption::InitializeMetadata, cls_DomainsAll},
    {kmaC_SpecificHeat::InitializeMetadata, cls_DomainsAll},
    {kmaC_Swelling::InitializeMetadata, cls_DomainsAll},
    {kmaC_TensionStiffening::InitializeMetadata, cls_DomainsAll},
    {kmaC_ThicknessBehavior::InitializeMetadata, cls_DomainsAll},
    {kmaC_TransShearElastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_TriaxialTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_Trs::InitializeMetadata, cls_DomainsAll},
    {kmaC_UniaxialTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_UserDefinedField::InitializeMetadata, cls_DomainsAll},
    {kmaC_UserMaterial::InitializeMetadata, cls_DomainsAll},
    {kmaC_UserOutputVariables::InitializeMetadata, cls_DomainsAll},
    {kmaC_VelocityDependence::InitializeMetadata, cls_DomainsAll},
    {kmaC_Viscoelastic::InitializeMetadata, cls_DomainsAll},
    {kmaC_Viscous::InitializeMetadata, cls_DomainsAll},
    {kmaC_VoidNucleation::InitializeMetadata, cls_DomainsAll},
    {kmaC_VolumetricTestData::InitializeMetadata, cls_DomainsAll},
    {kmaC_MaterialContainer::InitializeMetadata, cls_DomainLibrary | cls_DomainMemory},
    {kmaC_DamageInitiation::InitializeMetadata, cls_DomainsAll},
    {kmaC_DamageEvolution::InitializeMetadata, cls_DomainsAll},
    {kmaC_DamageStabilization::InitializeMetadata, cls_DomainsAll},
    {kmaC_FluidExpansion::InitializeMetadata, cls_DomainsAll},
    {kmaC_ThirdDirection::InitializeMetadata, cls_DomainsAll},
    {kmaC_AcousticBulkModulus::InitializeMetadata, cls_DomainsAll},
    {kmaC_SecondDirection::InitializeMetadata, cls_DomainsAll},
    {kmaC_FirstDirection::InitializeMetadata, cls_DomainsAll},
    {kmaC_BulkFailure::InitializeMetadata, cls_DomainsAll},
    {kmaC_Kappa::InitializeMetadata, cls_DomainsAll},
    {kmaC_BrittleCracking::InitializeMetadata, cls_DomainsAll},
    {kmaC_JointedMaterial::InitializeMetadata, cls_DomainsAll},
    {kmaC_FluidBulkModulus::InitializeMetadata, cls_DomainsAll},
    {kmaC_FluidDensity::InitializeMetadata, cls_DomainsAll},
    {kmaC_Unimplemented::InitializeMetadata, cls_DomainsAll},
    {kmaC_BrittleShear::InitializeMetadata, cls_DomainsAll},
    {kmaC_BrittleFailure::InitializeMetadata, cls_DomainsAll},
    {kmaC_AcousticVolumetricDrag::InitializeMetadata, cls_DomainsAll},
    {kmaC_JointShearRetention::InitializeMetadata, cls_DomainsAll},
    {kmaC_MCWrapper::InitializeMetadata, cls_DomainDatabase},
};
// clang-format on

}  // namespace

void kmaC_initialize(int& count) {
    if (!kmaGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kmaC_component, kmaC_ArchEntry());

    {
        // The model keeps a copy of the prototype, which shares the empty repository.
        kmaC_MaterialContainer const repository;
        kmaC_MCWrapper const wrapper(repository);
        ddr_Model::RegisterExtension(cow_String(ddr_Model::materialCmd()), wrapper);
    }

    cls_MetadataRegistrar& registrar = omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (Registration const& each : kmaClasses)
        registrar.initClassMetadata(each.metadata, each.mask);
    kmaC_RegisterOldClasses();
}

void kmaC_finalize(int& count) {
    if (!kmaGuard.Lower(count)) return;
    ddr_Model::UnRegisterExtension(cow_String(ddr_Model::materialCmd()));
}
