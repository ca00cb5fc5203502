#include "kmaC_ElectricalConductivity.h"

DD_DEFINE(kmaC_ElectricalConductivity, kmaC_Module)

void kmaC_ElectricalConductivity::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
