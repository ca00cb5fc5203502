#include "kbpC_ArbitraryProfile.h"

#include "kbpC_assert.h"

DD_DEFINE(kbpC_ArbitraryProfile, kbpC_Module)

namespace {

/// Rows without a third column have no thickness, and do not pass.
bool NoThicknessIsNegative(cow_2DArray<double> const& table) {
    if (table.Columns() < 3) return table.Rows() < 2;
    for (int row = 1; row < table.Rows(); ++row)
        if (!(table.Cell(row, 2) >= 0.0)) return false;
    return true;
}

bool NoTwoNeighboursHaveNone(cow_2DArray<double> const& table) {
    if (table.Columns() < 3) return true;
    for (int row = 1; row + 1 < table.Rows(); ++row)
        if (table.Cell(row, 2) == 0.0 && table.Cell(row + 1, 2) == 0.0) return false;
    return true;
}

}  // namespace

void kbpC_ArbitraryProfile::Rules(mdl_RuleVisitor& v) const {
    v.Rule(NoThicknessIsNegative(table), 11);
    v.Rule(NoTwoNeighboursHaveNone(table), 12);
}

int kbpC_ArbitraryProfile::NumTempPoints(bool) const { return table.Rows(); }
