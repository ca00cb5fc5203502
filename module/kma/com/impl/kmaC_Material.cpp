#include "kmaC_Material.h"

#include "kmaC_assert.h"

DD_DEFINE_ROOT(kmaC_Material, kmaC_Module)

// The order is not that of the members, and fifteen members are left out: brittleCracking, the
// twelve damage initiations, fluidLeakoff and gapFlow are never asked through their material.
void kmaC_Material::Rules(mdl_RuleVisitor& v) const {
    v.Ask(acousticMedium);
    v.Ask(capPlasticity);
    v.Ask(clayPlasticity);
    v.Ask(concrete);
    v.Ask(conductivity);
    v.Ask(creep);
    v.Ask(damping);
    v.Ask(deformationPlasticity);
    v.Ask(density);
    v.Ask(depvar);
    v.Ask(dielectric);
    v.Ask(diffusivity);
    v.Ask(druckerPrager);
    v.Ask(elastic);
    v.Ask(electricalConductivity);
    v.Ask(eos);
    v.Ask(expansion);
    v.Ask(foam);
    v.Ask(gel);
    v.Ask(heatGeneration);
    v.Ask(hyperelastic);
    v.Ask(hyperfoam);
    v.Ask(hypoelastic);
    v.Ask(inelasticHeatFraction);
    v.Ask(jouleHeatFraction);
    v.Ask(latentHeat);
    v.Ask(regularization);
    v.Ask(membraneElastic);
    v.Ask(moistureSwelling);
    v.Ask(permeability);
    v.Ask(piezoelectric);
    v.Ask(plastic);
    v.Ask(poreFluidExpansion);
    v.Ask(porousBulkModuli);
    v.Ask(porousElastic);
    v.Ask(porousMetalPlasticity);
    v.Ask(solubility);
    v.Ask(sorption);
    v.Ask(specificHeat);
    v.Ask(swelling);
    v.Ask(thicknessBehavior);
    v.Ask(transShearElastic);
    v.Ask(userDefinedField);
    v.Ask(userMaterial);
    v.Ask(userOutputVariables);
    v.Ask(viscoelastic);
    v.Ask(viscous);
    v.Ask(castIronPlasticity);
    v.Ask(mohrCoulomb);
    v.Ask(concreteDamagedPlasticity);
    v.Ask(mullinsEffect);
}
