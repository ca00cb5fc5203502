#include "kamC_Spectrum.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_Spectrum, kamC_Module)

void kamC_Spectrum::Rules(mdl_RuleVisitor& v) const {
    v.Rule(g >= 0.0, 13);
    // An empty table fails here, other than in a power spectral density.
    v.Rule(table.Columns() == 3, 15);
}
