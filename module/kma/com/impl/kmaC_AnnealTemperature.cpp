#include "kmaC_AnnealTemperature.h"

DD_DEFINE(kmaC_AnnealTemperature, kmaC_Module)

void kmaC_AnnealTemperature::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
