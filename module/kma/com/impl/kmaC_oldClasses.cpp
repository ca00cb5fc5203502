#include "kmaC_oldClasses.h"

#include "dbc_OldClass.h"
#include "kmaC_AcousticMedium.h"
#include "kmaC_AnnealTemperature.h"
#include "kmaC_BiaxialTestData.h"
#include "kmaC_BrittleCracking.h"
#include "kmaC_BrittleShear.h"
#include "kmaC_CapHardening.h"
#include "kmaC_CapPlasticity.h"
#include "kmaC_CastIronPlasticity.h"
#include "kmaC_ClayPlasticity.h"
#include "kmaC_CombinedTestData.h"
#include "kmaC_Concrete.h"
#include "kmaC_ConcreteDamagedPlasticity.h"
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
#include "kmaC_Elastic.h"
#include "kmaC_ElectricalConductivity.h"
#include "kmaC_Eos.h"
#include "kmaC_EosShear.h"
#include "kmaC_Expansion.h"
#include "kmaC_FluidBulkModulus.h"
#include "kmaC_FluidDensity.h"
#include "kmaC_FluidExpansion.h"
#include "kmaC_FluidLeakoff.h"
#include "kmaC_Foam.h"
#include "kmaC_GapFlow.h"
#include "kmaC_Gel.h"
#include "kmaC_HeatGeneration.h"
#include "kmaC_Hyperelastic.h"
#include "kmaC_Hyperfoam.h"
#include "kmaC_Hypoelastic.h"
#include "kmaC_Hysteresis.h"
#include "kmaC_InelasticHeatFraction.h"
#include "kmaC_JointedMaterial.h"
#include "kmaC_JouleHeatFraction.h"
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
#include "kmaC_PorousMetalPlasticity.h"
#include "kmaC_Potential.h"
#include "kmaC_RateDependent.h"
#include "kmaC_Regularization.h"
#include "kmaC_SaturationDependence.h"
#include "kmaC_ShearTestData.h"
#include "kmaC_SimpleShearTestData.h"
#include "kmaC_Solubility.h"
#include "kmaC_Sorption.h"
#include "kmaC_SpecificHeat.h"
#include "kmaC_Swelling.h"
#include "kmaC_ThicknessBehavior.h"
#include "kmaC_TransShearElastic.h"
#include "kmaC_Trs.h"
#include "kmaC_UniaxialTestData.h"
#include "kmaC_UserDefinedField.h"
#include "kmaC_UserMaterial.h"
#include "kmaC_UserOutputVariables.h"
#include "kmaC_VelocityDependence.h"
#include "kmaC_Viscoelastic.h"
#include "kmaC_Viscous.h"
#include "kmaC_VolumetricTestData.h"

namespace {

constexpr dbc_OldField Table(char const* name) {
    return dbc_Object(name, kmaC_MaterialTable::TypeId());
}

// clang-format off
constexpr dbc_OldField annealTemperature203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField annealTemperature307[] = {
    dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField annealTemperature452[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField biaxialTestData203[] = {
    Table("table"),
};
constexpr dbc_OldField brittleCracking203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Literal("type"),
    Table("table"), dbc_Object("brittleShear", kmaC_BrittleShear::TypeId()),
};
constexpr dbc_OldField capPlasticity203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), Table("table"),
    dbc_Object("capCreep", kmaC_CapCreepTypeId),
    dbc_Object("capHardening", kmaC_CapHardening::TypeId()),
};
constexpr dbc_OldField damageEvolution869[] = {
    dbc_Literal("type"), dbc_Literal("degradation"), dbc_Flag("temperatureDependency"),
    dbc_Int("dependencies"), dbc_Literal("mixedModeBehavior"), dbc_Literal("modeMixRatio"),
    dbc_Real("power"), dbc_Literal("softening"), Table("table"),
    dbc_Object("damageStabilization", kmaC_DamageStabilization::TypeId()),
};
constexpr dbc_OldField damageInitiation869[] = {
    dbc_Literal("definition"), dbc_Real("feq"), dbc_Real("fnn"), dbc_Real("fnt"),
    dbc_Int("frequency"), dbc_Real("ks"), dbc_Int("numberImperfections"),
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Real("alpha"),
    dbc_Real("omega"), Table("table"),
    dbc_Object("damageEvolution", kmaC_DamageEvolution::TypeId()),
};
constexpr dbc_OldField damping203[] = {
    dbc_Real("alpha"), dbc_Real("beta"), dbc_Real("composite"),
};
constexpr dbc_OldField eos203[] = {
    dbc_Literal("type"), Table("table"),
    dbc_Object("detonationPoint", kmaC_DetonationPoint::TypeId()),
    dbc_Object("eosShear", kmaC_EosShear::TypeId()),
};
constexpr dbc_OldField expansion203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Literal("type"),
    dbc_Flag("user"), dbc_Real("zero"), Table("table"),
};
constexpr dbc_OldField expansion419[] = {
    dbc_Literal("type"), dbc_Real("zero"), dbc_Flag("temperatureDependency"),
    dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField hyperelastic203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("n"), dbc_Literal("type"), dbc_Real("beta"),
    dbc_Literal("moduliTimeScale"), dbc_Int("properties"), dbc_Flag("compressible"),
    dbc_Flag("testData"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("hysteresis", kmaC_Hysteresis::TypeId()),
};
constexpr dbc_OldField hyperelastic324[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("n"), dbc_Literal("type"), dbc_Real("beta"),
    dbc_Literal("moduliTimeScale"), dbc_Int("properties"), dbc_Flag("compressible"),
    dbc_Flag("testData"), dbc_Literal("deviatoricResponse"), dbc_Literal("volumetricResponse"),
    dbc_Real("poissonRatio"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("hysteresis", kmaC_Hysteresis::TypeId()),
};
constexpr dbc_OldField hyperelastic328[] = {
    dbc_Literal("type"), dbc_Literal("moduliTimeScale"), dbc_Flag("temperatureDependency"),
    dbc_Int("n"), dbc_Real("beta"), dbc_Flag("testData"), dbc_Flag("compressible"),
    dbc_Int("properties"), dbc_Literal("deviatoricResponse"), dbc_Literal("volumetricResponse"),
    dbc_Real("poissonRatio"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("hysteresis", kmaC_Hysteresis::TypeId()),
};
constexpr dbc_OldField hyperelastic850[] = {
    dbc_Literal("type"), dbc_Literal("moduliTimeScale"), dbc_Flag("temperatureDependency"),
    dbc_Int("n"), dbc_Real("beta"), dbc_Flag("testData"), dbc_Flag("compressible"),
    dbc_Int("properties"), dbc_Literal("deviatoricResponse"), dbc_Literal("volumetricResponse"),
    dbc_Real("poissonRatio"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("hysteresis", kmaC_Hysteresis::TypeId()),
    dbc_Object("mullinsEffect", kmaC_MullinsEffect::TypeId()),
};
constexpr dbc_OldField hyperfoam203[] = {
    dbc_Flag("testData"), dbc_Real("poisson"), dbc_Int("n"), dbc_Flag("temperatureDependency"),
    dbc_Literal("moduli"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("simpleShearTestData", kmaC_SimpleShearTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
};
constexpr dbc_OldField hyperfoam850[] = {
    dbc_Flag("testData"), dbc_Real("poisson"), dbc_Int("n"), dbc_Flag("temperatureDependency"),
    dbc_Literal("moduli"), Table("table"),
    dbc_Object("biaxialTestData", kmaC_BiaxialTestData::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
    dbc_Object("planarTestData", kmaC_PlanarTestData::TypeId()),
    dbc_Object("simpleShearTestData", kmaC_SimpleShearTestData::TypeId()),
    dbc_Object("uniaxialTestData", kmaC_UniaxialTestData::TypeId()),
    dbc_Object("mullinsEffect", kmaC_MullinsEffect::TypeId()),
};
constexpr dbc_OldField mohrCoulomb205[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), Table("table"),
    dbc_Object("mohrCoulombHardening", kmaC_MohrCoulombHardening::TypeId()),
    dbc_Real("deviatoricEccentricity"), dbc_Real("eccentricity"),
};
constexpr dbc_OldField mullinsEffect850[] = {
    dbc_Real("beta"), dbc_Real("m"), dbc_Real("r"), dbc_Literal("inputSource"),
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), Table("table"),
    dbc_RealList("userProperties"),
};
constexpr dbc_OldField permeability203[] = {
    dbc_Flag("temperatureDependency"), dbc_Real("specific"), dbc_Literal("type"), Table("table"),
    dbc_Object("saturation", kmaC_SaturationDependence::TypeId()),
    dbc_Object("velocity", kmaC_VelocityDependence::TypeId()),
};
constexpr dbc_OldField piezoelectric203[] = {
    dbc_Literal("type"), Table("table"),
};
constexpr dbc_OldField planarTestData203[] = {
    Table("table"),
};
constexpr dbc_OldField plastic203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Literal("hardening"),
    dbc_Flag("rate"), dbc_Literal("dataType"), Table("table"),
    dbc_Object("rateDependent", kmaC_RateDependent::TypeId()),
    dbc_Object("potential", kmaC_Potential::TypeId()),
    dbc_Object("cyclicHardening", kmaC_CyclicHardening::TypeId()),
    dbc_Object("ornl", kmaC_Ornl::TypeId()),
    dbc_Object("cycledPlastic", kmaC_CycledPlastic::TypeId()),
    dbc_Object("annealTemperature", kmaC_AnnealTemperature::TypeId()),
};
constexpr dbc_OldField plastic419[] = {
    dbc_Literal("hardening"), dbc_Flag("rate"), dbc_Literal("dataType"),
    dbc_Flag("strainRangeDependency"), dbc_Real("gamma"), dbc_Flag("temperatureDependency"),
    dbc_Int("dependencies"), Table("table"),
    dbc_Object("rateDependent", kmaC_RateDependent::TypeId()),
    dbc_Object("potential", kmaC_Potential::TypeId()),
    dbc_Object("cyclicHardening", kmaC_CyclicHardening::TypeId()),
    dbc_Object("ornl", kmaC_Ornl::TypeId()),
    dbc_Object("cycledPlastic", kmaC_CycledPlastic::TypeId()),
    dbc_Object("annealTemperature", kmaC_AnnealTemperature::TypeId()),
};
constexpr dbc_OldField regularization203[] = {
    dbc_Real("rtol"), dbc_Literal("rate"),
};
constexpr dbc_OldField thicknessBehavior203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Literal("type"),
    dbc_Real("tensileStiffnessFactor"), dbc_Literal("units"), dbc_Literal("yieldOnsetMethod"),
    dbc_Real("yieldOnset"), Table("table"),
    dbc_Object("contactArea", kmaC_ContactArea::TypeId()),
    dbc_Flag("unloadingTemperatureDependency"), dbc_Int("unloadingDependencies"),
    Table("unloadingTable"),
};
constexpr dbc_OldField transShearElastic203[] = {
    dbc_Flag("temperatureDependency"), dbc_Int("dependencies"), dbc_Literal("units"),
    Table("table"),
};
constexpr dbc_OldField uniaxialTestData203[] = {
    Table("table"),
};
constexpr dbc_OldField userMaterial203[] = {
    dbc_Int("constants"), dbc_Literal("type"), dbc_Flag("unsymm"), Table("mechanicalTable"),
    Table("thermalTable"),
};
constexpr dbc_OldField userMaterial419[] = {
    dbc_Literal("type"), dbc_Flag("unsymm"), Table("mechanicalTable"), Table("thermalTable"),
};
constexpr dbc_OldField viscoelastic203[] = {
    dbc_Literal("domain"), dbc_Literal("frequency"), dbc_Literal("time"), dbc_Real("errtol"),
    dbc_Int("nmax"), Table("table"),
    dbc_Object("combinedTestData", kmaC_CombinedTestData::TypeId()),
    dbc_Object("shearTestData", kmaC_ShearTestData::TypeId()),
    dbc_Object("trs", kmaC_Trs::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
};
constexpr dbc_OldField viscoelastic855[] = {
    dbc_Literal("domain"), dbc_Literal("frequency"), dbc_Literal("type"), dbc_Literal("preload"),
    dbc_Literal("time"), dbc_Real("errtol"), dbc_Int("nmax"), Table("table"),
    dbc_Object("combinedTestData", kmaC_CombinedTestData::TypeId()),
    dbc_Object("shearTestData", kmaC_ShearTestData::TypeId()),
    dbc_Object("trs", kmaC_Trs::TypeId()),
    dbc_Object("volumetricTestData", kmaC_VolumetricTestData::TypeId()),
};
constexpr dbc_OldField viscous203[] = {
    dbc_Literal("law"), dbc_Flag("temperatureDependency"), dbc_Int("dependencies"),
    Table("table"),
};
constexpr dbc_OldField volumetricTestData203[] = {
    dbc_Real("volinf"), Table("table"),
};
constexpr dbc_OldField volumetricTestData324[] = {
    dbc_Real("volinf"), dbc_Flag("lateralNominalStrain"), dbc_Flag("temperatureDependency"),
    dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField capCreep203[] = {
    dbc_Literal("law"), dbc_Literal("mechanism"), dbc_Flag("temperatureDependency"),
    dbc_Int("dependencies"), Table("table"),
};
constexpr dbc_OldField material203[] = {
    dbc_Object("acousticMedium", kmaC_AcousticMedium::TypeId()),
    dbc_Object("brittleCracking", kmaC_BrittleCracking::TypeId()),
    dbc_Object("capPlasticity", kmaC_CapPlasticity::TypeId()),
    dbc_Object("clayPlasticity", kmaC_ClayPlasticity::TypeId()),
    dbc_Object("concrete", kmaC_Concrete::TypeId()),
    dbc_Object("conductivity", kmaC_Conductivity::TypeId()),
    dbc_Object("creep", kmaC_Creep::TypeId()), dbc_Object("damping", kmaC_Damping::TypeId()),
    dbc_Object("deformationPlasticity", kmaC_DeformationPlasticity::TypeId()),
    dbc_Object("density", kmaC_Density::TypeId()), dbc_Object("depvar", kmaC_Depvar::TypeId()),
    dbc_Object("dielectric", kmaC_Dielectric::TypeId()),
    dbc_Object("diffusivity", kmaC_Diffusivity::TypeId()),
    dbc_Object("druckerPrager", kmaC_DruckerPrager::TypeId()),
    dbc_Object("elastic", kmaC_Elastic::TypeId()),
    dbc_Object("electricalConductivity", kmaC_ElectricalConductivity::TypeId()),
    dbc_Object("eos", kmaC_Eos::TypeId()), dbc_Object("expansion", kmaC_Expansion::TypeId()),
    dbc_Object("fluidBulkModulus", kmaC_FluidBulkModulus::TypeId()),
    dbc_Object("fluidDensity", kmaC_FluidDensity::TypeId()),
    dbc_Object("fluidExpansion", kmaC_FluidExpansion::TypeId()),
    dbc_Object("foam", kmaC_Foam::TypeId()), dbc_Object("gel", kmaC_Gel::TypeId()),
    dbc_Object("heatGeneration", kmaC_HeatGeneration::TypeId()),
    dbc_Object("hyperelastic", kmaC_Hyperelastic::TypeId()),
    dbc_Object("hyperfoam", kmaC_Hyperfoam::TypeId()),
    dbc_Object("hypoelastic", kmaC_Hypoelastic::TypeId()),
    dbc_Object("inelasticHeatFraction", kmaC_InelasticHeatFraction::TypeId()),
    dbc_Object("jointedMaterial", kmaC_JointedMaterial::TypeId()),
    dbc_Object("jouleHeatFraction", kmaC_JouleHeatFraction::TypeId()),
    dbc_Object("latentHeat", kmaC_LatentHeat::TypeId()),
    dbc_Object("regularization", kmaC_Regularization::TypeId()),
    dbc_Object("membraneElastic", kmaC_MembraneElastic::TypeId()),
    dbc_Object("moistureSwelling", kmaC_MoistureSwelling::TypeId()),
    dbc_Object("permeability", kmaC_Permeability::TypeId()),
    dbc_Object("piezoelectric", kmaC_Piezoelectric::TypeId()),
    dbc_Object("plastic", kmaC_Plastic::TypeId()),
    dbc_Object("poreFluidExpansion", kmaC_PoreFluidExpansion::TypeId()),
    dbc_Object("porousBulkModuli", kmaC_PorousBulkModuli::TypeId()),
    dbc_Object("porousElastic", kmaC_PorousElastic::TypeId()),
    dbc_Object("porousMetalPlasticity", kmaC_PorousMetalPlasticity::TypeId()),
    dbc_Object("solubility", kmaC_Solubility::TypeId()),
    dbc_Object("sorption", kmaC_Sorption::TypeId()),
    dbc_Object("specificHeat", kmaC_SpecificHeat::TypeId()),
    dbc_Object("swelling", kmaC_Swelling::TypeId()),
    dbc_Object("thicknessBehavior", kmaC_ThicknessBehavior::TypeId()),
    dbc_Object("transShearElastic", kmaC_TransShearElastic::TypeId()),
    dbc_Object("userDefinedField", kmaC_UserDefinedField::TypeId()),
    dbc_Object("userMaterial", kmaC_UserMaterial::TypeId()),
    dbc_Object("userOutputVariables", kmaC_UserOutputVariables::TypeId()),
    dbc_Object("viscoelastic", kmaC_Viscoelastic::TypeId()),
    dbc_Object("viscous", kmaC_Viscous::TypeId()),
    dbc_Object("castIronPlasticity", kmaC_CastIronPlasticity::TypeId()),
    dbc_Object("mohrCoulomb", kmaC_MohrCoulomb::TypeId()),
    dbc_Object("concreteDamagedPlasticity", kmaC_ConcreteDamagedPlasticity::TypeId()),
};
constexpr dbc_OldField material849[] = {
    dbc_Object("acousticMedium", kmaC_AcousticMedium::TypeId()),
    dbc_Object("capPlasticity", kmaC_CapPlasticity::TypeId()),
    dbc_Object("castIronPlasticity", kmaC_CastIronPlasticity::TypeId()),
    dbc_Object("clayPlasticity", kmaC_ClayPlasticity::TypeId()),
    dbc_Object("concrete", kmaC_Concrete::TypeId()),
    dbc_Object("concreteDamagedPlasticity", kmaC_ConcreteDamagedPlasticity::TypeId()),
    dbc_Object("conductivity", kmaC_Conductivity::TypeId()),
    dbc_Object("creep", kmaC_Creep::TypeId()), dbc_Object("foam", kmaC_Foam::TypeId()),
    dbc_Object("damping", kmaC_Damping::TypeId()),
    dbc_Object("deformationPlasticity", kmaC_DeformationPlasticity::TypeId()),
    dbc_Object("density", kmaC_Density::TypeId()), dbc_Object("depvar", kmaC_Depvar::TypeId()),
    dbc_Object("dielectric", kmaC_Dielectric::TypeId()),
    dbc_Object("diffusivity", kmaC_Diffusivity::TypeId()),
    dbc_Object("druckerPrager", kmaC_DruckerPrager::TypeId()),
    dbc_Object("elastic", kmaC_Elastic::TypeId()),
    dbc_Object("electricalConductivity", kmaC_ElectricalConductivity::TypeId()),
    dbc_Object("eos", kmaC_Eos::TypeId()), dbc_Object("expansion", kmaC_Expansion::TypeId()),
    dbc_Object("fluidLeakoff", kmaC_FluidLeakoff::TypeId()),
    dbc_Object("gapFlow", kmaC_GapFlow::TypeId()),
    dbc_Object("thicknessBehavior", kmaC_ThicknessBehavior::TypeId()),
    dbc_Object("transShearElastic", kmaC_TransShearElastic::TypeId()),
    dbc_Object("membraneElastic", kmaC_MembraneElastic::TypeId()),
    dbc_Object("gel", kmaC_Gel::TypeId()),
    dbc_Object("heatGeneration", kmaC_HeatGeneration::TypeId()),
    dbc_Object("hyperelastic", kmaC_Hyperelastic::TypeId()),
    dbc_Object("hyperfoam", kmaC_Hyperfoam::TypeId()),
    dbc_Object("hypoelastic", kmaC_Hypoelastic::TypeId()),
    dbc_Object("inelasticHeatFraction", kmaC_InelasticHeatFraction::TypeId()),
    dbc_Object("jouleHeatFraction", kmaC_JouleHeatFraction::TypeId()),
    dbc_Object("latentHeat", kmaC_LatentHeat::TypeId()),
    dbc_Object("mohrCoulomb", kmaC_MohrCoulomb::TypeId()),
    dbc_Object("moistureSwelling", kmaC_MoistureSwelling::TypeId()),
    dbc_Object("permeability", kmaC_Permeability::TypeId()),
    dbc_Object("piezoelectric", kmaC_Piezoelectric::TypeId()),
    dbc_Object("plastic", kmaC_Plastic::TypeId()),
    dbc_Object("poreFluidExpansion", kmaC_PoreFluidExpansion::TypeId()),
    dbc_Object("porousBulkModuli", kmaC_PorousBulkModuli::TypeId()),
    dbc_Object("porousElastic", kmaC_PorousElastic::TypeId()),
    dbc_Object("porousMetalPlasticity", kmaC_PorousMetalPlasticity::TypeId()),
    dbc_Object("regularization", kmaC_Regularization::TypeId()),
    dbc_Object("solubility", kmaC_Solubility::TypeId()),
    dbc_Object("sorption", kmaC_Sorption::TypeId()),
    dbc_Object("specificHeat", kmaC_SpecificHeat::TypeId()),
    dbc_Object("swelling", kmaC_Swelling::TypeId()),
    dbc_Object("userDefinedField", kmaC_UserDefinedField::TypeId()),
    dbc_Object("userMaterial", kmaC_UserMaterial::TypeId()),
    dbc_Object("userOutputVariables", kmaC_UserOutputVariables::TypeId()),
    dbc_Object("viscoelastic", kmaC_Viscoelastic::TypeId()),
    dbc_Object("viscous", kmaC_Viscous::TypeId()),
};
constexpr dbc_OldField material850[] = {
    dbc_Object("acousticMedium", kmaC_AcousticMedium::TypeId()),
    dbc_Object("brittleCracking", kmaC_BrittleCracking::TypeId()),
    dbc_Object("capPlasticity", kmaC_CapPlasticity::TypeId()),
    dbc_Object("castIronPlasticity", kmaC_CastIronPlasticity::TypeId()),
    dbc_Object("clayPlasticity", kmaC_ClayPlasticity::TypeId()),
    dbc_Object("concrete", kmaC_Concrete::TypeId()),
    dbc_Object("concreteDamagedPlasticity", kmaC_ConcreteDamagedPlasticity::TypeId()),
    dbc_Object("conductivity", kmaC_Conductivity::TypeId()),
    dbc_Object("creep", kmaC_Creep::TypeId()), dbc_Object("foam", kmaC_Foam::TypeId()),
    dbc_Object("damping", kmaC_Damping::TypeId()),
    dbc_Object("deformationPlasticity", kmaC_DeformationPlasticity::TypeId()),
    dbc_Object("density", kmaC_Density::TypeId()), dbc_Object("depvar", kmaC_Depvar::TypeId()),
    dbc_Object("dielectric", kmaC_Dielectric::TypeId()),
    dbc_Object("diffusivity", kmaC_Diffusivity::TypeId()),
    dbc_Object("druckerPrager", kmaC_DruckerPrager::TypeId()),
    dbc_Object("elastic", kmaC_Elastic::TypeId()),
    dbc_Object("electricalConductivity", kmaC_ElectricalConductivity::TypeId()),
    dbc_Object("eos", kmaC_Eos::TypeId()), dbc_Object("expansion", kmaC_Expansion::TypeId()),
    dbc_Object("fluidLeakoff", kmaC_FluidLeakoff::TypeId()),
    dbc_Object("gapFlow", kmaC_GapFlow::TypeId()),
    dbc_Object("thicknessBehavior", kmaC_ThicknessBehavior::TypeId()),
    dbc_Object("transShearElastic", kmaC_TransShearElastic::TypeId()),
    dbc_Object("membraneElastic", kmaC_MembraneElastic::TypeId()),
    dbc_Object("gel", kmaC_Gel::TypeId()),
    dbc_Object("heatGeneration", kmaC_HeatGeneration::TypeId()),
    dbc_Object("hyperelastic", kmaC_Hyperelastic::TypeId()),
    dbc_Object("hyperfoam", kmaC_Hyperfoam::TypeId()),
    dbc_Object("hypoelastic", kmaC_Hypoelastic::TypeId()),
    dbc_Object("inelasticHeatFraction", kmaC_InelasticHeatFraction::TypeId()),
    dbc_Object("jouleHeatFraction", kmaC_JouleHeatFraction::TypeId()),
    dbc_Object("latentHeat", kmaC_LatentHeat::TypeId()),
    dbc_Object("mohrCoulomb", kmaC_MohrCoulomb::TypeId()),
    dbc_Object("moistureSwelling", kmaC_MoistureSwelling::TypeId()),
    dbc_Object("permeability", kmaC_Permeability::TypeId()),
    dbc_Object("piezoelectric", kmaC_Piezoelectric::TypeId()),
    dbc_Object("plastic", kmaC_Plastic::TypeId()),
    dbc_Object("poreFluidExpansion", kmaC_PoreFluidExpansion::TypeId()),
    dbc_Object("porousBulkModuli", kmaC_PorousBulkModuli::TypeId()),
    dbc_Object("porousElastic", kmaC_PorousElastic::TypeId()),
    dbc_Object("porousMetalPlasticity", kmaC_PorousMetalPlasticity::TypeId()),
    dbc_Object("regularization", kmaC_Regularization::TypeId()),
    dbc_Object("solubility", kmaC_Solubility::TypeId()),
    dbc_Object("sorption", kmaC_Sorption::TypeId()),
    dbc_Object("specificHeat", kmaC_SpecificHeat::TypeId()),
    dbc_Object("swelling", kmaC_Swelling::TypeId()),
    dbc_Object("userDefinedField", kmaC_UserDefinedField::TypeId()),
    dbc_Object("userMaterial", kmaC_UserMaterial::TypeId()),
    dbc_Object("userOutputVariables", kmaC_UserOutputVariables::TypeId()),
    dbc_Object("viscoelastic", kmaC_Viscoelastic::TypeId()),
    dbc_Object("viscous", kmaC_Viscous::TypeId()),
};
constexpr dbc_OldField material869[] = {
    dbc_Object("acousticMedium", kmaC_AcousticMedium::TypeId()),
    dbc_Object("brittleCracking", kmaC_BrittleCracking::TypeId()),
    dbc_Object("capPlasticity", kmaC_CapPlasticity::TypeId()),
    dbc_Object("castIronPlasticity", kmaC_CastIronPlasticity::TypeId()),
    dbc_Object("clayPlasticity", kmaC_ClayPlasticity::TypeId()),
    dbc_Object("concrete", kmaC_Concrete::TypeId()),
    dbc_Object("concreteDamagedPlasticity", kmaC_ConcreteDamagedPlasticity::TypeId()),
    dbc_Object("conductivity", kmaC_Conductivity::TypeId()),
    dbc_Object("creep", kmaC_Creep::TypeId()), dbc_Object("foam", kmaC_Foam::TypeId()),
    dbc_Object("ductileDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("fldDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("flsdDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("johnsonCookDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("maxeDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("maxsDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("mkDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("msfldDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("quadeDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("quadsDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("shearDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("hashinDamageInitiation", kmaC_DamageInitiation::TypeId()),
    dbc_Object("damping", kmaC_Damping::TypeId()),
    dbc_Object("deformationPlasticity", kmaC_DeformationPlasticity::TypeId()),
    dbc_Object("density", kmaC_Density::TypeId()), dbc_Object("depvar", kmaC_Depvar::TypeId()),
    dbc_Object("dielectric", kmaC_Dielectric::TypeId()),
    dbc_Object("diffusivity", kmaC_Diffusivity::TypeId()),
    dbc_Object("druckerPrager", kmaC_DruckerPrager::TypeId()),
    dbc_Object("elastic", kmaC_Elastic::TypeId()),
    dbc_Object("electricalConductivity", kmaC_ElectricalConductivity::TypeId()),
    dbc_Object("eos", kmaC_Eos::TypeId()), dbc_Object("expansion", kmaC_Expansion::TypeId()),
    dbc_Object("fluidLeakoff", kmaC_FluidLeakoff::TypeId()),
    dbc_Object("gapFlow", kmaC_GapFlow::TypeId()),
    dbc_Object("thicknessBehavior", kmaC_ThicknessBehavior::TypeId()),
    dbc_Object("transShearElastic", kmaC_TransShearElastic::TypeId()),
    dbc_Object("membraneElastic", kmaC_MembraneElastic::TypeId()),
    dbc_Object("gel", kmaC_Gel::TypeId()),
    dbc_Object("heatGeneration", kmaC_HeatGeneration::TypeId()),
    dbc_Object("hyperelastic", kmaC_Hyperelastic::TypeId()),
    dbc_Object("hyperfoam", kmaC_Hyperfoam::TypeId()),
    dbc_Object("hypoelastic", kmaC_Hypoelastic::TypeId()),
    dbc_Object("inelasticHeatFraction", kmaC_InelasticHeatFraction::TypeId()),
    dbc_Object("jouleHeatFraction", kmaC_JouleHeatFraction::TypeId()),
    dbc_Object("latentHeat", kmaC_LatentHeat::TypeId()),
    dbc_Object("mohrCoulomb", kmaC_MohrCoulomb::TypeId()),
    dbc_Object("moistureSwelling", kmaC_MoistureSwelling::TypeId()),
    dbc_Object("permeability", kmaC_Permeability::TypeId()),
    dbc_Object("piezoelectric", kmaC_Piezoelectric::TypeId()),
    dbc_Object("plastic", kmaC_Plastic::TypeId()),
    dbc_Object("poreFluidExpansion", kmaC_PoreFluidExpansion::TypeId()),
    dbc_Object("porousBulkModuli", kmaC_PorousBulkModuli::TypeId()),
    dbc_Object("porousElastic", kmaC_PorousElastic::TypeId()),
    dbc_Object("porousMetalPlasticity", kmaC_PorousMetalPlasticity::TypeId()),
    dbc_Object("regularization", kmaC_Regularization::TypeId()),
    dbc_Object("solubility", kmaC_Solubility::TypeId()),
    dbc_Object("sorption", kmaC_Sorption::TypeId()),
    dbc_Object("specificHeat", kmaC_SpecificHeat::TypeId()),
    dbc_Object("swelling", kmaC_Swelling::TypeId()),
    dbc_Object("userDefinedField", kmaC_UserDefinedField::TypeId()),
    dbc_Object("userMaterial", kmaC_UserMaterial::TypeId()),
    dbc_Object("userOutputVariables", kmaC_UserOutputVariables::TypeId()),
    dbc_Object("viscoelastic", kmaC_Viscoelastic::TypeId()),
    dbc_Object("viscous", kmaC_Viscous::TypeId()),
};

constexpr unsigned option = kmaC_MaterialOption::TypeId();

constexpr dbc_OldClass oldClasses[] = {
    {"kmaC_AnnealTemperature_203", "kmaC_AnnealTemperature",
     kmaC_AnnealTemperature::TypeId(), 203, option, 4,
     annealTemperature203, dbc_Step(307)},
    {"kmaC_AnnealTemperature_307", "kmaC_AnnealTemperature",
     kmaC_AnnealTemperature::TypeId(), 307, option, 4,
     annealTemperature307, dbc_Step(452, kmaC_AnnealTemperatureTo452)},
    {"kmaC_AnnealTemperature_452", "kmaC_AnnealTemperature",
     kmaC_AnnealTemperature::TypeId(), 452, option, 5,
     annealTemperature452, dbc_Step(813)},
    {"kmaC_BiaxialTestData_203", "kmaC_BiaxialTestData",
     kmaC_BiaxialTestData::TypeId(), 203, option, 4,
     biaxialTestData203, dbc_Step(324, kmaC_TestDataTo324)},
    {"kmaC_BrittleCracking_203", "kmaC_BrittleCracking",
     kmaC_BrittleCracking::TypeId(), 203, option, 4,
     brittleCracking203, dbc_Step(850, kmaC_NothingTo)},
    {"kmaC_CapPlasticity_203", "kmaC_CapPlasticity", kmaC_CapPlasticity::TypeId(), 203, option, 4,
     capPlasticity203, dbc_Step(452, kmaC_CapPlasticityTo452)},
    {"kmaC_CapCreep_203", "kmaC_CapCreep", kmaC_CapCreepTypeId, 203, cls_RootTypeId, 5,
     capCreep203, dbc_Deleted()},
    {"kmaC_DamageEvolution_869", "kmaC_DamageEvolution",
     kmaC_DamageEvolution::TypeId(), 869, option, 4,
     damageEvolution869, dbc_Step(883, kmaC_NothingTo)},
    {"kmaC_DamageInitiation_869", "kmaC_DamageInitiation",
     kmaC_DamageInitiation::TypeId(), 869, option, 4,
     damageInitiation869, dbc_Step(883, kmaC_DamageInitiationTo883)},
    {"kmaC_Damping_203", "kmaC_Damping", kmaC_Damping::TypeId(), 203, option, 5,
     damping203, dbc_Step(1050, kmaC_DampingTo1050)},
    {"kmaC_Eos_203", "kmaC_Eos", kmaC_Eos::TypeId(), 203, option, 4,
     eos203, dbc_Step(999, kmaC_NothingTo)},
    {"kmaC_Expansion_203", "kmaC_Expansion", kmaC_Expansion::TypeId(), 203, option, 4,
     expansion203, dbc_Step(419)},
    {"kmaC_Expansion_419", "kmaC_Expansion", kmaC_Expansion::TypeId(), 419, option, 4,
     expansion419, dbc_Step(435, kmaC_ExpansionTo435)},
    {"kmaC_Hyperelastic_203", "kmaC_Hyperelastic", kmaC_Hyperelastic::TypeId(), 203, option, 4,
     hyperelastic203, dbc_Step(324, kmaC_HyperelasticTo324)},
    {"kmaC_Hyperelastic_324", "kmaC_Hyperelastic", kmaC_Hyperelastic::TypeId(), 324, option, 4,
     hyperelastic324, dbc_Step(328, kmaC_HyperelasticTo328)},
    {"kmaC_Hyperelastic_328", "kmaC_Hyperelastic", kmaC_Hyperelastic::TypeId(), 328, option, 4,
     hyperelastic328, dbc_Step(850, kmaC_NothingTo)},
    {"kmaC_Hyperelastic_850", "kmaC_Hyperelastic", kmaC_Hyperelastic::TypeId(), 850, option, 5,
     hyperelastic850, dbc_Step(864, kmaC_HyperelasticTo864)},
    {"kmaC_Hyperfoam_203", "kmaC_Hyperfoam", kmaC_Hyperfoam::TypeId(), 203, option, 4,
     hyperfoam203, dbc_Step(850, kmaC_NothingTo)},
    {"kmaC_Hyperfoam_850", "kmaC_Hyperfoam", kmaC_Hyperfoam::TypeId(), 850, option, 5,
     hyperfoam850, dbc_Step(864, kmaC_HyperfoamTo864)},
    {"kmaC_Material_203", "kmaC_Material", kmaC_Material::TypeId(), 203, cls_RootTypeId, 4,
     material203, dbc_Step(212)},
    {"kmaC_Material_212", "kmaC_Material", kmaC_Material::TypeId(), 212, cls_RootTypeId, 4,
     material203, dbc_Step(301)},
    {"kmaC_Material_301", "kmaC_Material", kmaC_Material::TypeId(), 301, cls_RootTypeId, 5,
     material203, dbc_Step(849)},
    {"kmaC_Material_849", "kmaC_Material", kmaC_Material::TypeId(), 849, cls_RootTypeId, 5,
     material849, dbc_Step(850)},
    {"kmaC_Material_850", "kmaC_Material", kmaC_Material::TypeId(), 850, cls_RootTypeId, 5,
     material850, dbc_Step(869)},
    {"kmaC_Material_869", "kmaC_Material", kmaC_Material::TypeId(), 869, cls_RootTypeId, 5,
     material869, dbc_Step(1053, kmaC_MaterialTo1053)},
    {"kmaC_MohrCoulomb_205", "kmaC_MohrCoulomb", kmaC_MohrCoulomb::TypeId(), 205, option, 5,
     mohrCoulomb205, dbc_Step(404, kmaC_MohrCoulombTo404)},
    {"kmaC_MullinsEffect_850", "kmaC_MullinsEffect", kmaC_MullinsEffect::TypeId(), 850, option, 5,
     mullinsEffect850, dbc_Deleted()},
    {"kmaC_Permeability_203", "kmaC_Permeability", kmaC_Permeability::TypeId(), 203, option, 4,
     permeability203, dbc_Step(404, kmaC_PermeabilityTo404)},
    {"kmaC_Piezoelectric_203", "kmaC_Piezoelectric", kmaC_Piezoelectric::TypeId(), 203, option, 4,
     piezoelectric203, dbc_Step(516, kmaC_PiezoelectricTo516)},
    {"kmaC_PlanarTestData_203", "kmaC_PlanarTestData",
     kmaC_PlanarTestData::TypeId(), 203, option, 4,
     planarTestData203, dbc_Step(324, kmaC_TestDataTo324)},
    {"kmaC_Plastic_203", "kmaC_Plastic", kmaC_Plastic::TypeId(), 203, option, 4,
     plastic203, dbc_Step(419, kmaC_PlasticTo419, kmaC_PlasticFinalize)},
    {"kmaC_Plastic_419", "kmaC_Plastic", kmaC_Plastic::TypeId(), 419, option, 5,
     plastic419, dbc_Step(1107, kmaC_PlasticTo1107, kmaC_PlasticFinalize)},
    {"kmaC_Regularization_203", "kmaC_Regularization",
     kmaC_Regularization::TypeId(), 203, option, 4,
     regularization203, dbc_Step(404, kmaC_RegularizationTo404)},
    {"kmaC_ThicknessBehavior_203", "kmaC_ThicknessBehavior",
     kmaC_ThicknessBehavior::TypeId(), 203, option, 4,
     thicknessBehavior203, dbc_Step(404, kmaC_UnitsTo404)},
    {"kmaC_TransShearElastic_203", "kmaC_TransShearElastic",
     kmaC_TransShearElastic::TypeId(), 203, option, 4,
     transShearElastic203, dbc_Step(404, kmaC_UnitsTo404)},
    {"kmaC_UniaxialTestData_203", "kmaC_UniaxialTestData",
     kmaC_UniaxialTestData::TypeId(), 203, option, 4,
     uniaxialTestData203, dbc_Step(324, kmaC_TestDataTo324)},
    {"kmaC_UserMaterial_203", "kmaC_UserMaterial", kmaC_UserMaterial::TypeId(), 203, option, 4,
     userMaterial203, dbc_Step(419)},
    {"kmaC_UserMaterial_419", "kmaC_UserMaterial", kmaC_UserMaterial::TypeId(), 419, option, 4,
     userMaterial419, dbc_Step(451, kmaC_UserMaterialTo451)},
    {"kmaC_Viscoelastic_203", "kmaC_Viscoelastic", kmaC_Viscoelastic::TypeId(), 203, option, 5,
     viscoelastic203, dbc_Step(855, kmaC_ViscoelasticTo855)},
    {"kmaC_Viscoelastic_855", "kmaC_Viscoelastic", kmaC_Viscoelastic::TypeId(), 855, option, 5,
     viscoelastic855, dbc_Step(876, kmaC_ViscoelasticTo876)},
    {"kmaC_Viscous_203", "kmaC_Viscous", kmaC_Viscous::TypeId(), 203, option, 4,
     viscous203, dbc_Step(438)},
    {"kmaC_VolumetricTestData_203", "kmaC_VolumetricTestData",
     kmaC_VolumetricTestData::TypeId(), 203, option, 4,
     volumetricTestData203, dbc_Step(324, kmaC_VolumetricTestDataTo324)},
    {"kmaC_VolumetricTestData_324", "kmaC_VolumetricTestData",
     kmaC_VolumetricTestData::TypeId(), 324, option, 4,
     volumetricTestData324, dbc_Step(325, kmaC_VolumetricTestDataTo325)},
};
// clang-format on

}  // namespace

void kmaC_RegisterOldClasses() { dbc_RegisterOldClasses(oldClasses); }
