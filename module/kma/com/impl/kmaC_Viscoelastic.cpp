#include "kmaC_Viscoelastic.h"

DD_DEFINE(kmaC_Viscoelastic, kmaC_Module)

void kmaC_Viscoelastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(nmax >= 1, 4);
    v.Rule(nmax < 14, 5);
    v.Rule(!(type == TypeEnm::TRACTION && preload == PreloadEnm::VOLUMETRIC), 35);
    v.Ask(combinedTestData);
    v.Ask(shearTestData);
    v.Ask(trs);
    v.Ask(volumetricTestData);
    // The volumetric table is not asked.
    v.Ask(table);
}
