#include "kmaC_Hyperelastic.h"

DD_DEFINE(kmaC_Hyperelastic, kmaC_Module)

void kmaC_Hyperelastic::Rules(mdl_RuleVisitor& v) const {
    bool const ordered = type == TypeEnm::OGDEN || type == TypeEnm::POLYNOMIAL ||
                         type == TypeEnm::REDUCED_POLYNOMIAL;
    if (ordered) {
        v.Rule(n >= 1, 17);
        v.Rule(n <= (type == TypeEnm::POLYNOMIAL && testData ? 2 : 6), 18);
    }
    v.Ask(biaxialTestData);
    v.Ask(planarTestData);
    v.Ask(uniaxialTestData);
    v.Ask(volumetricTestData);
    v.Ask(hysteresis);
    if (testData && type == TypeEnm::VAN_DER_WAALS)
        v.Rule((beta >= 0.0 && beta <= 1.0) || beta == kmaC_NotSet, 22);
    if (type == TypeEnm::USER) v.Rule(properties >= 0, 23);
    // With test data the coefficients are fitted, so what the table holds does not matter.
    if (!testData) v.Ask(table);
}
