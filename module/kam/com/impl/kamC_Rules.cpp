#include "kamC_Rules.h"

#include <limits>

namespace {

/// Equal times pass, whatever the message says, and so does a time that is no number. Rows without
/// a column have no times.
bool TimesDoNotFall(cow_2DArray<double> const& data) {
    if (data.Columns() == 0) return data.Rows() < 2;
    for (int row = 1; row < data.Rows(); ++row)
        if (data.Cell(row, 0) < data.Cell(row - 1, 0)) return false;
    return true;
}

}  // namespace

bool kamC_IsSmoothing(double smooth) {
    return smooth == std::numeric_limits<double>::max() || (smooth >= 0.0 && smooth <= 0.5);
}

void kamC_TimeTableRules(mdl_RuleVisitor& v, cow_2DArray<double> const& data) {
    v.Rule(data.Columns() <= 2, 11);
    v.Rule(data.Rows() >= 2, 12);
    v.Rule(TimesDoNotFall(data), 0);
}
