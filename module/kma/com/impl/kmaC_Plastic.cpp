#include "kmaC_Plastic.h"

DD_DEFINE(kmaC_Plastic, kmaC_Module)

namespace {

/// Whether the table is a curve that begins at first yield.
bool GivesYieldCurve(kmaC_Plastic const& plastic) {
    using Hardening = kmaC_Plastic::HardeningEnm;
    using DataType = kmaC_Plastic::DataTypeEnm;
    switch (plastic.hardening) {
        case Hardening::ISOTROPIC:
        case Hardening::KINEMATIC:
            return true;
        case Hardening::COMBINED:
            return plastic.dataType == DataType::HALF_CYCLE ||
                   plastic.dataType == DataType::STABILIZED;
        default:
            return false;
    }
}

// A table too small for the cell that a rule reads does not satisfy it.

bool StartsAtZeroStrain(kmaC_MaterialTable const& table) {
    return table.Rows() >= 1 && table.Columns() >= 2 && table.Cell(0, 1) == 0.0;
}

bool HasStaticRow(kmaC_MaterialTable const& table) {
    if (table.Columns() < 3) return false;
    for (int row = 0; row < table.Rows(); ++row)
        if (table.Cell(row, 2) == 0.0) return true;
    return false;
}

}  // namespace

void kmaC_Plastic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(rateDependent);
    v.Ask(potential);
    v.Ask(cyclicHardening);
    v.Ask(ornl);
    v.Ask(cycledPlastic);
    v.Ask(annealTemperature);
    if (hardening != HardeningEnm::USER) v.Ask(table);
    if (GivesYieldCurve(*this)) v.Rule(StartsAtZeroStrain(table), 37);
    if (rate) v.Rule(HasStaticRow(table), 38);
}
