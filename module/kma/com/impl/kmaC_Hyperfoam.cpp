#include "kmaC_Hyperfoam.h"

DD_DEFINE(kmaC_Hyperfoam, kmaC_Module)

void kmaC_Hyperfoam::Rules(mdl_RuleVisitor& v) const {
    v.Rule(n >= 1, 17);
    v.Rule(n < 7, 18);
    if (poisson != kmaC_NotSet) {
        v.Rule(poisson >= 0.0, 2);
        v.Rule(poisson <= 0.5, 3);
    }
    // The test data are asked in an order that is not the schema's.
    v.Ask(biaxialTestData);
    v.Ask(planarTestData);
    v.Ask(simpleShearTestData);
    v.Ask(uniaxialTestData);
    v.Ask(volumetricTestData);
    if (!testData) v.Ask(table);
}
