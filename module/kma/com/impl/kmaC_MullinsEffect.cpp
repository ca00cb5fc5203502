#include "kmaC_MullinsEffect.h"

DD_DEFINE(kmaC_MullinsEffect, kmaC_Module)

void kmaC_MullinsEffect::Rules(mdl_RuleVisitor& v) const {
    if (definition == DefinitionEnm::USER)
        v.Rule(static_cast<long long>(table.Rows()) * table.Columns() == properties, 45);
    if (definition == DefinitionEnm::CONSTANTS) {
        if (!v.Rule(table.Rows() >= 1, 44)) return;
        if (!v.Rule(table.Columns() >= 3, 44)) return;
        for (int row = 0; row < table.Rows(); ++row) {
            double const r = table.Cell(row, 0);
            double const m = table.Cell(row, 1);
            double const beta = table.Cell(row, 2);
            if (!v.Rule(r > 1.0, 41)) return;
            if (!v.Rule(m >= 0.0, 40)) return;
            if (!v.Rule(beta >= 0.0, 39)) return;
            if (!v.Rule(!(m == 0.0 && beta == 0.0), 42)) return;
        }
    }
    if (definition == DefinitionEnm::TEST_DATA) {
        // Options of any class may stand in the lists, and each answers for itself.
        v.AskEach(biaxialTests);
        v.AskEach(uniaxialTests);
        v.AskEach(planarTests);
        long long const tests =
            static_cast<long long>(biaxialTests.Size()) + uniaxialTests.Size() + planarTests.Size();
        v.Rule(tests >= 1, 43);
    }
}
